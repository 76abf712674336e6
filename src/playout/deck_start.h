#pragma once

#include <functional>

#include "playout/deck_loading.h"
#include "playout/deck_volume.h"
#include "playout/desk.h"
#include "playout/journal.h"
#include "playout/mix.h"

namespace sonarelle {

/// How the start of a deck is shown and counted.
struct StartKind {
    bool follows_a_row;   ///< The current row is the one that plays from now on, and the track counts.
    bool shows_path;      ///< The main window's title names the path, not the file alone.
    bool opens_any_video; ///< All kinds of video get their window, not the classic ones alone.
};
/// Within a run, and by hand.
inline constexpr StartKind start_of_a_track{.follows_a_row = true, .shows_path = false, .opens_any_video = true};
/// The first track of a list, whose row the list window has shown already.
inline constexpr StartKind start_of_a_run{.follows_a_row = false, .shows_path = true, .opens_any_video = false};

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

    /// Sets a rendered deck going at its start of play, as loud as its record says, and shows it as the main one.
    void set_going(Deck& deck, const StartKind& kind);

    /// Clears a deck's display; its sound goes on.
    void clear_display(Deck& deck);

private:
    void arrange_buttons(Deck& deck);
    void set_end_point(Deck& deck);
    void begin_sound(Deck& deck);
    void align_timers();
    void show_names(Deck& deck, const StartKind& kind);
    void keep_air_state(const StartKind& kind);
    void count_track();
    void remember_start(const std::string& path);
    void release_ring(Deck& deck);
    void silence(Deck& deck);

    Desk& desk_;
    DeckLoading& loading_;
    DeckVolume& volume_;
    MixEngine& mix_;
    Journal& journal_;
};

} // namespace sonarelle
