#pragma once

#include "playout/deck_start.h"
#include "playout/desk.h"
#include "playout/load_ahead.h"
#include "playout/overlap.h"
#include "playout/row_cursor.h"
#include "playout/row_walk.h"
#include "playout/run_control.h"

namespace sonarelle {

/// The chain of the list: starts the next row some seconds before the main deck's end.
class ListChain {
public:
    ListChain(Desk& desk, RowCursor& cursor, LoadAhead& load_ahead, DeckStart& start, Overlap& overlap,
              RunControl& run);

    /// Each second of a run from the list.
    void tick();
    /// Goes over from a deck to the next one, while the old one fades.
    void automatic_zap(Deck& old);
    /// Shows where the main deck is, while the chain stands still.
    void show_main_deck();

    /// Whether a row to follow the track on the air is being looked for.
    [[nodiscard]] bool looks_for_a_row() const { return walk_.under_way(); }
    void cancel() { walk_.cancel(); }

private:
    void look();
    void show_progress(Deck& deck, Integer mix_point);
    void mix_point(Deck& deck, Integer point);
    /// Where the search for the row behind a track begins; from there it goes on in list order.
    enum class FirstLook { next_row, current_row, drawn_row };
    void follow_at_once(Deck& deck, FirstLook first);
    /// Looks for the row behind the deck's track, for as long as that is the one to follow.
    void walk_to_follow(Deck& deck, RowWalk::Step step);
    [[nodiscard]] bool try_to_follow(Deck& deck);
    [[nodiscard]] bool take_row_to_follow();
    [[nodiscard]] bool start_row(Deck& old);
    [[nodiscard]] bool try_to_zap(Deck& old);
    [[nodiscard]] bool take_row_to_zap_on();
    [[nodiscard]] bool start_zapped(Deck& old);
    void show_full_volume(Deck& deck);
    /// Loads the current row's file on the deck behind; false when the row was passed over.
    [[nodiscard]] bool load_behind(Deck& old, const DestinationRecord& row);
    void play_behind(Deck& old);
    /// Whether the current row's file is there, and isn't the one that plays.
    [[nodiscard]] bool is_found_to_follow();
    void pass_over(std::string_view why);

    Desk& desk_;
    RowCursor& cursor_;
    LoadAhead& load_ahead_;
    DeckStart& start_;
    Overlap& overlap_;
    RunControl& run_;
    RowWalk walk_;
    FirstLook first_look_ = FirstLook::next_row;
};

} // namespace sonarelle
