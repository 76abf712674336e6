#pragma once

#include <functional>
#include <vector>

#include "platform/dialogs.h"
#include "platform/platform.h"
#include "playout/deck_ring.h"
#include "playout/journal.h"
#include "state/station_settings.h"
#include "windows/antenne_fm.h"

namespace sonarelle {

/// The one way out of the program.
class Shutdown {
public:
    struct Process {
        std::function<std::vector<Window*>()> windows; ///< Every window in the order of creation.
        std::function<void()> end;                     ///< Ends the program.
    };
    Shutdown(const Platform& platform, const StationSettings& settings, Antenne_FM& window, DeckRing& ring,
             Journal& journal, Process process);

    /// Asks, unless closing is confirmed already, writes the journal's last line and ends.
    void Quitter__Click();
    /// The main window is asked to close: its place is stored, whatever the operator answers then.
    void Form_QueryUnload();

    /// Closes without asking: the operator has confirmed it elsewhere.
    void quit_confirmed();

private:
    [[nodiscard]] Answer ask();
    void confirm();
    void unload_windows();

    const Platform& platform_;
    const StationSettings& settings_;
    Antenne_FM& window_;
    DeckRing& ring_;
    Journal& journal_;
    Process process_;
    bool fermeture_confirmee_ = false;
};

} // namespace sonarelle
