#pragma once

#include "playout/desk.h"
#include "playout/mix.h"

namespace sonarelle {

/// What becomes of the deck behind the main one while their tracks overlap: its fade, and its release at the end.
class Overlap {
public:
    Overlap(Desk& desk, MixEngine& mix)
        : desk_{desk},
          mix_{mix} {}

    /// A new track overlaps the old one from now on.
    void begin() { faded_deck_ = 0; }

    /// Each step of the fade.
    void tick();

private:
    void look();
    void release(Deck& main, Deck& old);
    void fade(Deck& old);

    Desk& desk_;
    MixEngine& mix_;
    int faded_deck_ = 0; // whose fade has begun and is reported
};

} // namespace sonarelle
