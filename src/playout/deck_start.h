#pragma once

#include <functional>

#include "playout/deck_loading.h"
#include "playout/deck_volume.h"
#include "playout/desk.h"
#include "playout/journal.h"
#include "playout/mix_engine.h"

namespace sonarelle {

/// Starts a loaded deck and turns it into the main one.
class DeckStart {
public:
    DeckStart(Desk& desk, DeckLoading& loading, DeckVolume& volume, MixEngine& mix, Journal& journal);

    /// A deck that has already moved doesn't start again, and one without a file neither.
    /// @throws Failure when its file can't be rendered, or its end point is no number.
    void play(Deck& deck);

    /// The play button: a list without rows means the chain over decks.
    void press_play(Deck& deck);

    /// Chooses the chain over decks, with all that goes with it, even where the choice is shown already.
    std::function<void()> choose_chain_over_decks;

    /// Clears a deck's display; its sound goes on.
    void clear_display(Deck& deck);

    /// Begins the periods of the chain's timers anew, so that their ticks fall on whole seconds of the main deck.
    void align_timers();

private:
    void arrange_buttons(Deck& deck);
    void set_end_point(Deck& deck);
    void run(Deck& deck);
    void show_names(Deck& deck);
    void show_main_deck(Deck& deck);
    void count_track();
    void release_ring(Deck& deck);
    void silence(Deck& deck);

    Desk& desk_;
    DeckLoading& loading_;
    DeckVolume& volume_;
    MixEngine& mix_;
    Journal& journal_;
};

} // namespace sonarelle
