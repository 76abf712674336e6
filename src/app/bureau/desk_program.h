#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/bureau/sound_probe.h"
#include "app/common/live_machine.h"
#include "app/common/machine.h"
#include "app/common/waveforms.h"
#include "desktop/desktop.h"
#include "desktop/desktop_dialogs.h"
#include "desktop/desktop_shell.h"
#include "desktop/picture_store.h"
#include "desktop/pulse.h"
#include "desktop/update_queue.h"
#include "platform/host/file_presence.h"
#include "station/station.h"

namespace sonarelle {

/// The desk: a station on this machine's sound, disk and screen. One QApplication stands around it. Window thread.
class DeskProgram {
public:
    /// `file`, a path of this machine as typed, or empty, is what the station opens and plays.
    /// @throws Failure for a file that no drive reaches, and as Machine::make_ready.
    DeskProgram(Machine& machine, const std::string& file);
    ~DeskProgram();
    DeskProgram(const DeskProgram&) = delete;
    DeskProgram& operator=(const DeskProgram&) = delete;

    /// Goes on the air and turns the windows' loop until the station has ended.
    void run();

    [[nodiscard]] Station& station() { return station_; }
    [[nodiscard]] LiveMachine& live() { return live_; }
    [[nodiscard]] QWidget* widget_of(const Window& window) const { return desktop_.widget_of(window); }

private:
    [[nodiscard]] Platform platform();
    [[nodiscard]] PathForms path_forms();
    /// Empty where there is none.
    [[nodiscard]] std::string picture_path(const std::string& name);
    void run_event(const std::function<void()>& event);
    /// A fault that no routine of the station caught is told, and the station stays on the air.
    void guard(const std::function<void()>& work);
    void tell_fault(const std::string& sentence);
    void note(const std::string& what);
    void connect();
    void choose_output(const std::string& name);
    void tell_output(OutputState state);
    void tell_gaps(OutputGaps gaps);

    Machine& machine_;
    std::vector<std::string> told_; // by the start, for the operator
    std::string command_line_;
    std::string program_folder_;
    LiveMachine live_;
    DesktopDialogs dialogs_;
    DesktopShell shell_;
    Station station_;
    UpdateQueue updates_;
    PictureStore pictures_;
    Waveforms waveforms_{machine_.drives(), machine_.folders().waveforms};
    DesktopServices services_;
    FilePresence presence_{machine_.drives()};
    SoundProbe probe_{live_.bus().taps()};
    Desktop desktop_;
    Pulse pulse_;
    bool tells_fault_ = false;
};

} // namespace sonarelle
