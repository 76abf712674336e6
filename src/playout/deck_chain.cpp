#include "playout/deck_chain.h"

namespace sonarelle {

void DeckChain::tick() {
    if (desk_.chain.chaine_suspendue.is_true() || desk_.chain.mode_enchainement.is_true())
        return;
    run_.under_trap("T2", [this] { look(); });
}

void DeckChain::look() {
    if (desk_.is_manual())
        return show_manual_mode();
    if (desk_.window.Active_audio_jingles.checked)
        return serve_special_mix();
    if (!desk_.ring.has_main_deck())
        return desk_.display.no_chain_runs();
    Deck& deck = desk_.ring.main_deck();
    show_progress(deck);
    if (deck.whole_position() == desk_.settings.prechargement)
        desk_.display.can_be_zapped(deck);
    const Integer point = deck.end_point() - desk_.settings.mix_courant;
    // A file that is shorter than its overlap has no mix point: its end is what the next one follows.
    if (point <= 0 && !deck.has_played_out())
        return;
    if (!desk_.window.mix_titles.value())
        return show_manual_mode();
    desk_.chain.ligne_journal = "Mix lecteur : Play" + deck.name();
    desk_.display.chain_follows_decks(deck, point);
    if (is_due(deck, point))
        play_ring(deck.number());
    else
        desk_.display.deck_runs_in_ring(deck);
}

// The chain waits for the end of the mix, and the desk goes on showing where the track on the air is.
void DeckChain::serve_special_mix() {
    desk_.window.Active_audio_zapping.checked = false;
    if (mix_.serve_special_mix())
        desk_.window.Active_audio_zapping.checked = true;
    if (desk_.ring.has_main_deck() && desk_.ring.main_deck().has_graph())
        show_progress(desk_.ring.main_deck());
}

void DeckChain::show_progress(Deck& deck) {
    const Integer position = deck.whole_position();
    desk_.display.main_deck_is_at(deck, position);
    if (position != 0)
        desk_.display.main_deck_ends_in(deck.whole_duration() - position);
}

bool DeckChain::is_due(Deck& deck, Integer point) {
    return deck.has_played_out() || desk_.elapsed() == point;
}

// An overlap of 0 sets the next deck going too, and so on round the ring until a start sets another overlap. A turn
// that changed nothing ends with this tick.
void DeckChain::play_ring(int first) {
    desk_.window.deck_chain_timer.set_interval(0);
    for (int deck = first, turns = 0; turns < 3; deck = next_deck(deck), ++turns) {
        desk_.display.waits(desk_.ring.deck(deck));
        start_.press_play(desk_.ring.deck(next_deck(deck)));
        if (desk_.settings.mix_courant != 0)
            break;
    }
    desk_.window.deck_chain_timer.set_interval(desk_.settings.valeur_vitesse_timer);
}

void DeckChain::show_manual_mode() {
    desk_.display.decks_run_by_hand();
    for (Deck& deck : desk_.ring.decks) {
        if (!deck.has_graph())
            return;
        if (!deck.path.empty())
            deck.controls.progress.value = deck.whole_position().value();
    }
}

} // namespace sonarelle
