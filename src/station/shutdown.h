#pragma once

#include <functional>
#include <vector>

#include "platform/dialogs.h"
#include "playout/desk.h"
#include "playout/journal.h"

namespace sonarelle {

/// The one way out of the program.
class Shutdown {
public:
    /// `windows` gives every window in the order of creation, `end_process` ends the program.
    Shutdown(Desk& desk, Journal& journal, std::function<std::vector<Window*>()> windows,
             std::function<void()> end_process);

    /// Asks, unless closing is confirmed already, writes the journal's last line and ends.
    void Quitter__Click();
    /// The main window is asked to close: its place is stored, whatever the operator answers then.
    void Form_QueryUnload();

    /// Closes without asking: the operator has confirmed it elsewhere.
    void quit_confirmed();

private:
    [[nodiscard]] Answer ask();
    void confirm();
    void close_journal();
    void unload_windows();
    void drop_graphs();

    Desk& desk_;
    Journal& journal_;
    std::function<std::vector<Window*>()> windows_;
    std::function<void()> end_process_;
    bool fermeture_confirmee_ = false;
};

} // namespace sonarelle
