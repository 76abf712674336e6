#pragma once

#include "playout/deck_start.h"
#include "playout/desk.h"
#include "playout/mix.h"
#include "playout/run_control.h"

namespace sonarelle {

/// The chain over decks: starts the next deck of the ring some seconds before the main one's end.
class DeckChain {
public:
    DeckChain(Desk& desk, DeckStart& start, MixEngine& mix, RunControl& run)
        : desk_{desk},
          start_{start},
          mix_{mix},
          run_{run} {}

    /// Each second of a run over decks.
    void tick();

private:
    void look();
    void serve_special_mix();
    void show_progress(Deck& deck);
    void show_manual_mode();
    [[nodiscard]] bool is_due(Deck& deck, Integer point);
    void play_ring(int first);

    Desk& desk_;
    DeckStart& start_;
    MixEngine& mix_;
    RunControl& run_;
};

} // namespace sonarelle
