#pragma once

#include "playout/desk.h"
#include "playout/journal.h"
#include "playout/mix.h"
#include "playout/running_mode.h"

namespace sonarelle {

/// The choices of the chain: by hand, over decks, from the list; and the reading modes of the list window.
class ChainModes {
public:
    ChainModes(Desk& desk, MixEngine& mix, Journal& journal)
        : desk_{desk},
          mix_{mix},
          journal_{journal} {}

    void choose_manual_mode();
    void choose_deck_chain();
    void choose_list_chain();
    void toggle_list_chain();
    void choose_mix_titles();
    void choose_mix_list();

    void choose_player_mode();
    void choose_random_mode() { choose_list_mode(true, "Liste - Lecture aléatoire"); }
    void choose_defined_end_mode() { choose_list_mode(false, "Liste - Lecture fin de piste définie"); }
    void choose_full_length_mode() { choose_list_mode(false, "Liste - Lecture durée piste"); }

    /// The key "l": the list chain, unless the decks are run by hand.
    void press_list_key();

    void press_deck_chain_lamp();
    void press_list_chain_lamp();

private:
    /// Sets what the mode's row names. What it raises on the way are the events of no part.
    void enter(const RunningMode& mode);
    void check_entries(const MenuItem& mode);
    void choose_list_mode(bool random, const std::string& journal_text);
    void clear_insertions();
    void show_end_point(const std::string& text);
    void read_overlap();
    void tell_failed_choice(const Failure& failure);

    Desk& desk_;
    MixEngine& mix_;
    Journal& journal_;
};

} // namespace sonarelle
