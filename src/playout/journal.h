#pragma once

#include <functional>
#include <string>

#include "platform/platform.h"
#include "playout/notices.h"
#include "state/chain_state.h"
#include "state/station_settings.h"
#include "windows/antenne_fm.h"

namespace sonarelle {

/// The play log of the station, `journal.doc` in the program's folder: one entry a line, appended and flushed at once.
class Journal {
public:
    Journal(const Platform& platform, const StationSettings& settings, ChainState& chain, Antenne_FM& window,
            Notices& notices)
        : platform_{platform},
          settings_{settings},
          chain_{chain},
          window_{window},
          notices_{notices} {}

    /// Writes `ligne_journal`, whether the journal is on or not. A disk that refuses it is passed over: the air goes
    /// on.
    void journal() { static_cast<void>(append_line()); }

    /// Writes a line while the journal is on. True unless the disk refused it.
    bool note(const std::string& line);

    /// The same for the list window, which tells the operator when the line can't be written.
    void note_of_list_window(const std::string& line);

    /// Deletes the file; the next line begins a new one. False when there is none, or the disk refuses it.
    bool discard();

    /// Writes the last line of a run. Only "Activer  conserver" keeps the file beyond it.
    void close();

    /// Called with each line that `note` writes.
    std::function<void(const std::string&)> on_line;

    void keep_for_this_run();
    void keep_on();
    void switch_off();
    void purge();
    /// Shows it, by the operator's own program where the settings name one.
    void open();

private:
    void choose(const MenuItem& entry, bool active);
    [[nodiscard]] bool append_line();

    const Platform& platform_;
    const StationSettings& settings_;
    ChainState& chain_;
    Antenne_FM& window_;
    Notices& notices_;
};

} // namespace sonarelle
