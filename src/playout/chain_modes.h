#pragma once

#include "playout/desk.h"
#include "playout/journal.h"
#include "playout/mix_engine.h"
#include "playout/running_mode.h"

namespace sonarelle {

/// The choices of the chain: by hand, over decks, from the list; and the reading modes of the list window.
class ChainModes {
public:
    ChainModes(Desk& desk, MixEngine& mix, Journal& journal) : desk_{desk}, mix_{mix}, journal_{journal} {}

    void a_mode_manuel_Click();
    void a_mode_auto_Click();
    void a_mode_predefini_Click();
    void A_a_zapping_Click();
    void coche2_Click();
    void coche3_Click();

    void Option1_Click();
    void Option2_Click() { choose_list_mode(true, "Liste - Lecture aléatoire"); }
    void Option3_Click() { choose_list_mode(false, "Liste - Lecture fin de piste définie"); }
    void Option4_Click() { choose_list_mode(false, "Liste - Lecture durée piste"); }

    /// The key "l": the list chain, unless the decks are run by hand.
    void press_list_key();

    void Image12_Click();
    void Image13_Click();

private:
    /// Sets what the mode's row names. What it raises on the way are the events of no part.
    void enter(const RunningMode& mode);
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
