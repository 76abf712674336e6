#pragma once

#include "playout/deck_volume.h"
#include "playout/desk.h"

namespace sonarelle {

/// How many seconds two tracks overlap, how far ahead the next file is loaded, which fade rule applies, and the special
/// mix: a second file over the main deck, which is lowered meanwhile.
class MixEngine {
public:
    MixEngine(Desk& desk, DeckVolume& volume);

    /// Sets overlap and load lead from the main deck's end point.
    /// @throws Failure 13 for an end point that is no number.
    void Choix_mix();

    /// The overlap field's buttons and its up-down companion.
    void shorten_overlap() { change_overlap(-1); }
    void lengthen_overlap() { change_overlap(1); }
    void set_overlap(Integer seconds);
    void take_overlap_steps();

    /// The load step on and off.
    void choose_load_ahead();

    void choose_special_mix_rule() { check_only(desk_.window.fade_rules(), desk_.window.Active_audio_jingles); }
    /// Another rule ends the special mix, which goes by the first one.
    void choose_list_fade() { choose_rule(desk_.window.Active_audio); }
    void choose_zap_fade() { choose_rule(desk_.window.Active_audio_zapping); }
    void choose_no_fade();

    /// Drops the graph of the deck before the main one at once: no overlap.
    void Pas_demix_audio();
    /// Drops a deck's graph. One that still sounds is cut, which is reported.
    void release(Deck& deck);

    /// The special mix of a deck over the main one; a deck isn't mixed over itself. One that is under way on another
    /// deck ends, and its sound plays out.
    void special_mix(Deck& deck);
    /// Ends the special mix, however it comes about: the main deck has its volume again, the chain goes on.
    void end_special_mix();
    /// Ends it when it is that of this deck.
    void leave_special_mix(const Deck& deck);
    /// What a tick of the chain does while a special mix runs. Returns true when it ended with this tick, or there was
    /// none to serve.
    bool serve_special_mix();

    /// Back to hand operation: no lamp of the list chain, no load step.
    void manuel_mix();
    /// Arranges the decks' buttons round the main deck.
    void select_bouton();

private:
    void change_overlap(int step);
    void choose_rule(MenuItem& rule);
    void warn_of_long_mix(const Deck& deck);
    void start_special_mix(Deck& deck);
    void store_overlap();
    [[nodiscard]] bool is_mode_defined() const;

    Desk& desk_;
    DeckVolume& volume_;
};

} // namespace sonarelle
