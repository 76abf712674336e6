#pragma once

#include <optional>

#include "platform/programme_silence.h"
#include "platform/timer.h"
#include "playout/desk.h"
#include "playout/journal.h"
#include "playout/list_rescue.h"

namespace sonarelle {

/// Tells a silence of 2 s and more that nobody on the desk has asked for, and lets the rescue have its turn. Runs on
/// the station's own time, from the beginning on.
class AirWatch {
public:
    AirWatch(Desk& desk, Journal& journal, ListRescue& rescue);

private:
    void look();
    /// A deck was started and the operator has neither stopped nor paused it, nor runs the decks by hand.
    [[nodiscard]] bool is_wanted() const;
    void tell_silence(Frames since);
    void tell_end(Frames end);
    void aim(Frames silent_for);

    Desk& desk_;
    Journal& journal_;
    ListRescue& rescue_;
    Timer timer_;
    Frames unwanted_until_; // at the last look at which nobody wanted sound
};

} // namespace sonarelle
