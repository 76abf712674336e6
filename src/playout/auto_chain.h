#pragma once

#include <set>
#include <string>
#include <string_view>

#include "playlist/record_reading.h"
#include "playout/deck_loading.h"
#include "playout/deck_start.h"
#include "playout/desk.h"
#include "playout/journal.h"
#include "playout/mix_engine.h"
#include "playout/random_order.h"
#include "playout/row_walk.h"
#include "playout/run_control.h"

namespace sonarelle {

/// Why a row is passed over and stays in the list, for the journal.
namespace passed_over {
inline constexpr std::string_view silent_disk = " Le disque ne répond pas";
inline constexpr std::string_view no_folder = " Dossier absent, gardé dans la liste";
inline constexpr std::string_view too_short = " Plus court qu'une seconde";
inline constexpr std::string_view unplayable = " Lecture impossible, gardé dans la liste";
} // namespace passed_over

/// Keeps sound on the air without a hand on the desk: loads the next row some seconds before it is needed, starts it
/// some seconds before the main deck's end, and releases the old deck. One class for the ticks of `Timer1` to `Timer4`.
class AutoChain {
public:
    AutoChain(Desk& desk, DeckLoading& loading, DeckStart& start, MixEngine& mix, Journal& journal, RunControl& run,
              RecordReading& reading);

    void Timer1_tick();
    void Timer2_tick();
    void Timer3_tick();
    void Timer4_tick();

    /// Goes over from a deck to the next one, while the old one fades.
    void automatic_zap(Deck& old);

    /// Loads the row that the walk stands on onto the deck behind `old`, starts it and shows the row.
    /// False when its disk doesn't answer.
    bool start_row(Deck& old);

    /// Counts the remaining time of the list window down by a second.
    void compteur();

    /// Steps to the next row, round the end, and takes its path.
    void take_next_row();
    /// Takes the path of the current row, round the end.
    void take_current_row();
    /// Whether the load step has put the current row on that deck already.
    [[nodiscard]] bool is_loaded(const Deck& next) const;
    /// A new track overlaps the old one from now on.
    void begin_overlap() {
        faded_deck_ = 0;
        passed_over_.clear();
    }

    /// Whether the current row's file is there. A row whose drive or folder doesn't answer is passed over and kept.
    [[nodiscard]] bool is_found();

    /// Journals once a track that the current row isn't taken.
    void note_passed_over(std::string_view why);

    /// Whether a row to follow the track on the air is being looked for.
    [[nodiscard]] bool looks_for_a_row() const { return mix_walk_.under_way(); }

    /// Ends the walks that look for a row.
    void cancel_walks();

private:
    using Trap = std::function<void(const std::function<void()>&)>;

    [[nodiscard]] bool loads_ahead() const;
    void load_step();
    bool try_to_load_next();
    /// Whether the current row's file is there, as far as can be seen; and its load onto the next deck. A row that
    /// fails is removed or passed over.
    [[nodiscard]] bool is_file_there();
    [[nodiscard]] bool load_row();
    /// Of a file: its folder answers.
    [[nodiscard]] bool is_folder_there(const std::string& path);
    /// Its folder answers and doesn't hold it.
    [[nodiscard]] bool is_missing(const std::string& path);
    [[nodiscard]] static std::string_view why_not_loaded(LoadResult result);
    void loaded();
    void drop_invalid_row();
    /// Keeps the current row, and journals once a track why it isn't taken.
    void pass_over_row(RowWalk& walk, std::string_view why);
    void stop_after_load_error();
    void leave_load_step();

    void list_tick();
    void special_mix_tick();
    void show_list_progress(Deck& deck, Integer mix_point);
    void mix_point(Deck& deck, Integer point);
    /// Where the search for the row behind a track begins; from there it goes on in list order.
    enum class FirstLook { next_row, current_row, drawn_row };
    void follow_at_once(Deck& deck, FirstLook first);
    /// Looks for the row behind the deck's track, for as long as that is the one to follow.
    void walk_to_follow(Deck& deck, RowWalk::Step step);
    bool try_to_follow(Deck& deck);
    [[nodiscard]] bool take_row_to_follow();
    bool try_to_zap(Deck& old);
    void give_prepared_row_up(Integer row);
    bool start_zapped(Deck& old);
    void show_full_volume(Deck& deck);
    /// Loads the current row's file on the deck behind; false when the row was passed over.
    [[nodiscard]] bool load_behind(Deck& old);
    void play_behind(Deck& old);
    [[nodiscard]] bool take_drawn_row();
    /// Whether it is, and isn't the one that plays.
    [[nodiscard]] bool is_found_to_follow();

    void deck_tick();
    void show_deck_progress(Deck& deck);
    void manual_display();
    [[nodiscard]] bool is_due(Deck& deck, Integer point);
    /// The bar is full, or the deck has nothing left to play.
    [[nodiscard]] static bool has_played_out(const Deck& deck);
    void play_ring(int deck);

    void overlap_tick();
    void release(Deck& main, Deck& old);
    void fade(Deck& old);
    [[nodiscard]] Trap trap_of(const std::string& name);
    void stop_after_failure(const std::string& name, const Failure& failure);

    Desk& desk_;
    DeckLoading& loading_;
    DeckStart& start_;
    MixEngine& mix_;
    Journal& journal_;
    RunControl& run_;
    RecordReading& reading_;
    RowWalk load_walk_;
    RowWalk mix_walk_;
    RandomOrder random_order_;
    std::set<std::string> passed_over_; // since the last start
    FirstLook first_look_ = FirstLook::next_row;
    int faded_deck_ = 0; // the deck whose fade has begun and is reported
};

} // namespace sonarelle
