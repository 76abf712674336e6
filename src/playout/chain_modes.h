#pragma once

#include "playout/desk.h"
#include "playout/draw_control.h"
#include "playout/journal.h"
#include "playout/mix.h"
#include "playout/running_mode.h"

namespace sonarelle {

/// The choices of the chain: by hand, over decks, from the list; and the reading modes of the list window.
class ChainModes {
public:
    ChainModes(Desk& desk, MixEngine& mix, Journal& journal, DrawControl& control)
        : desk_{desk},
          mix_{mix},
          journal_{journal},
          control_{control} {}

    void choose_manual_mode();
    void choose_deck_chain();
    void choose_list_chain();
    void toggle_list_chain();
    void choose_mix_titles();
    void choose_mix_list();

    void choose_player_mode();
    void choose_random_mode();
    void choose_defined_end_mode();
    void choose_full_length_mode();

    /// The order of the rows, by the menu: where the list is read in another one, its reading mode changes.
    void choose_order(bool random);

    /// The key "l": the list chain, unless the decks are run by hand.
    void press_list_key();

    void press_deck_chain_lamp();
    void press_list_chain_lamp();

private:
    /// Sets what the mode's row names. What it raises on the way are the events of no part.
    void enter(const RunningMode& mode);
    void check_entries(const MenuItem& mode);
    struct ReadingModeWords {
        std::string_view plain;
        std::string_view over_a_mix; ///< While a special mix runs, before its overlap.
    };
    void take_stopped_list_up();
    void choose_list_mode(const RunningMode& mode, const ReadingModeWords& words);
    void choose_list_order(const ReadingModeWords& words, Image& lamp);
    void take_order(bool random);
    void leave_random_mode();
    void note(const ReadingModeWords& words);
    /// Where the list would go on with rows that are drawn from another one, and none is named.
    void tell_missing_source();
    void end_insertions();
    void clear_insertions();
    void show_end_point(const std::string& text);
    void read_overlap();
    void tell_failed_choice(const Failure& failure);

    Desk& desk_;
    MixEngine& mix_;
    Journal& journal_;
    DrawControl& control_;
};

} // namespace sonarelle
