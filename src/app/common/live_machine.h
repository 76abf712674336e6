#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/audio/live_clock.h"
#include "platform/audio/live_driver.h"
#include "platform/audio/live_output.h"
#include "platform/audio/programme_bus.h"
#include "platform/audio/sound_media.h"
#include "platform/drive_table.h"
#include "platform/host/host_disk.h"
#include "platform/host/host_shell.h"
#include "platform/platform.h"
#include "platform/random.h"
#include "platform/scheduler.h"

namespace sonarelle {

class Settings;

/// The sound output of a live program: a device by its name, the default one for an empty name, or nothing, which lets
/// the clock pace the programme.
using OutputName = std::optional<std::string>;

/// The parts of this machine that a station on the air lives on: time, sound, disk and the desktop around it. Window
/// thread.
class LiveMachine {
public:
    /// Before there are other threads.
    LiveMachine(DriveTable drives, std::uint64_t seed);

    /// The machine as a station sees it, with the boxes and settings of the program.
    [[nodiscard]] Platform platform(Settings& settings, Dialogs& dialogs, Shell& shell,
                                    const std::string& program_folder);

    /// From here on the bus is pulled. Both are called on the window thread; the gaps are all since the start.
    void open_output(const OutputName& name, std::function<void(OutputState)> on_change,
                     std::function<void(OutputGaps)> on_gaps);
    /// Null before `open_output`.
    [[nodiscard]] LiveOutput* output() { return output_.get(); }

    [[nodiscard]] HostDisk& disk() { return disk_; }
    [[nodiscard]] HostShell& shell() { return shell_; }
    [[nodiscard]] Scheduler& scheduler() { return scheduler_; }
    [[nodiscard]] LiveClock& clock() { return clock_; }
    [[nodiscard]] ProgrammeBus& bus() { return bus_; }
    [[nodiscard]] SoundMedia& media() { return media_; }
    [[nodiscard]] LiveDriver& driver() { return driver_; }

private:
    DriveTable drives_;
    HostDisk disk_;
    HostShell shell_{disk_};
    Scheduler scheduler_;
    ProgrammeBus bus_;
    LiveClock clock_{scheduler_, bus_};
    SoundMedia media_;
    LiveDriver driver_{scheduler_, clock_, bus_, media_};
    Random random_;
    std::unique_ptr<LiveOutput> output_;
};

/// What the journal says of the output.
[[nodiscard]] std::string state_text(OutputState state);

/// What the journal and the desk say of the gaps since the start.
[[nodiscard]] std::string gaps_text(OutputGaps gaps);

/// What the journal says of a file that starved or broke.
[[nodiscard]] std::string trouble_text(const SoundReport& report);

} // namespace sonarelle
