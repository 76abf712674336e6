#include "playout/deck_start.h"

#include <cstdint>
#include <utility>

#include "platform/calendar_text.h"
#include "playout/file_title.h"

namespace sonarelle {

namespace {

/// A counter that is full stays so; false then.
bool count_up(Integer& counter) {
    if (counter == INT16_MAX)
        return false;
    counter += 1;
    return true;
}

} // namespace

DeckStart::DeckStart(Desk& desk, DeckLoading& loading, DeckVolume& volume, MixEngine& mix, Journal& journal)
    : desk_{desk},
      loading_{loading},
      volume_{volume},
      mix_{mix},
      journal_{journal} {}

void DeckStart::press_play(Deck& deck) {
    if (desk_.row_count() == 0 && !desk_.is_manual() && choose_chain_over_decks)
        choose_chain_over_decks();
    for (Integer* marker : {&desk_.chain.index_debut_aleatoire, &desk_.chain.index_debut_aleatoire1})
        if (*marker == 0)
            *marker = desk_.list.index_en_cours;
    play(deck);
}

void DeckStart::play(Deck& deck) {
    if (deck.controls.progress.value > 0)
        return;
    deck.create_graph();
    if (deck.path.empty())
        return;
    deck.graph().RenderFile(deck.path); // before all else: the main deck stays when the file can't be played
    arrange_buttons(deck);
    desk_.chain.lecteur_en_cours = deck.number();
    set_end_point(deck); // by which the overlap is chosen
    set_going(deck, start_of_a_track);
    if (!desk_.is_manual())
        release_ring(deck);
    // Behind the release: what still sounds there ends as quietly as it was.
    desk_.ring.after(deck).controls.slider.set_value(0);
}

void DeckStart::set_going(Deck& deck, const StartKind& kind) {
    begin_sound(deck);
    show_names(deck, kind);
    if (kind.follows_a_row)
        count_track();
    desk_.chain.demande_ajout = true;
    remember_start(deck.path);
    desk_.display.mark_main(deck);
    desk_.display.chain_goes_on();
    keep_air_state(kind);
    desk_.report({.kind = OnAirEvent::Kind::started,
                  .deck = deck.number(),
                  .row = desk_.list.index_en_cours.value(),
                  .path = deck.path,
                  .overlap = desk_.settings.mix_courant.value(),
                  .load_lead = desk_.settings.prechargement.value()});
}

void DeckStart::arrange_buttons(Deck& deck) {
    if (desk_.window.mix_titles.value())
        desk_.display.can_be_zapped(deck);
    if (!desk_.is_manual()) {
        clear_display(desk_.ring.before(deck));
        desk_.display.leave_buttons_to(deck);
    }
    desk_.display.can_be_played(deck);
    desk_.display.keeps_its_file(deck);
}

void DeckStart::set_end_point(Deck& deck) {
    ChainState& chain = desk_.chain;
    desk_.display.ends_at(deck, loading_.end_point_text(deck, deck.fin_piste));
    if (chain.mode_enchainement.is_true()) {
        if (desk_.settings.valide_fichier_aleatoire.is_true())
            count_up(chain.compteur_aleatoire);
        if (desk_.settings.valide_fichier_aleatoire1.is_true())
            count_up(chain.compteur_aleatoire1);
        desk_.window.deck_chain_timer.disable();
    } else {
        desk_.window.deck_chain_timer.enable();
    }
    // The first deck's interval is set when its chain over decks begins, the others' at each start.
    if (deck.number() != 1 || !chain.mode_enchainement.is_true())
        desk_.window.deck_chain_timer.set_interval(desk_.settings.valeur_vitesse_timer);
}

// All that decides how the track sounds comes before it runs, and the timers begin anew when it does.
void DeckStart::begin_sound(Deck& deck) {
    volume_.apply_start(deck);
    desk_.window.load_ahead_timer.enable(); // a load or a pause in the run before may have left it off
    deck.controls.scroll_timer.enable();
    const double length = deck.graph().get_Duration();
    desk_.display.list_remaining(loading_.duration_text(length));
    if (length >= shortest_good_file) {
        deck.controls.progress.maximum = deck.whole_duration().value();
        deck.graph().put_CurrentPosition(deck.start_of_play());
    }
    deck.start_by_hand.reset();
    mix_.Choix_mix();
    deck.graph().Run();
    if (desk_.ring.is_main(deck))
        desk_.display.elapsed(deck.whole_position()); // a hand may be there before the next tick
    align_timers();
    deck.volume_sauve = deck.controls.slider.value();
}

// Their ticks fall on whole seconds of the main deck.
void DeckStart::align_timers() {
    for (Timer* timer :
         {&desk_.window.load_ahead_timer, &desk_.window.deck_chain_timer, &desk_.window.list_chain_timer})
        timer->restart();
}

void DeckStart::show_names(Deck& deck, const StartKind& kind) {
    if (kind.follows_a_row) {
        desk_.display.list_reads_row(desk_.list.index_en_cours);
        if (desk_.chain.ecoute_en_cours.is_false())
            desk_.list.ligne_en_lecture = desk_.list.index_en_cours;
    }
    const std::string name = loading_.name_of(deck.path);
    const std::string title = short_title(name);
    desk_.display.started(deck, {name, title, kind.shows_path ? deck.path : name});
    const std::string& extension = desk_.chain.extension_fichier;
    if (kind.opens_any_video ? has_video_ending(extension) : has_classic_video_ending(extension))
        deck.open_video(title);
}

// What is started by hand behind a fault is followed by nothing yet.
void DeckStart::keep_air_state(const StartKind& kind) {
    const bool begins_a_run = !kind.follows_a_row;
    if (begins_a_run || desk_.chain.air != AirState::failed || desk_.window.deck_chain_timer.enabled() ||
        desk_.window.list_chain_timer.enabled())
        desk_.set_air(AirState::on);
}

void DeckStart::remember_start(const std::string& path) {
    std::deque<std::string>& started = desk_.chain.started_paths;
    started.push_back(path);
    if (started.size() > ChainState::most_started_paths)
        started.pop_front();
}

// A station is on the air for longer than the counter lasts.
void DeckStart::count_track() {
    if (!count_up(desk_.chain.nb_fichiers_ecoutes) && !std::exchange(desk_.chain.overflow_noted, true))
        journal_.note("Nb_de_fichier_écouté : " + std::string{failure_description(FailureNumber::overflow)});
}

// The next deck in the ring is the one that the ring left two steps ago: its sound ends here.
void DeckStart::release_ring(Deck& deck) {
    if (desk_.window.Désactive_audio.checked)
        mix_.Pas_demix_audio();
    journal_.note("Nb_de_fichier_écouté " + text_of(desk_.chain.nb_fichiers_ecoutes));
    journal_.note(time_text(desk_.platform) + " Lecture de " + deck.path + " (" + text_of(desk_.list.index_en_cours) +
                  ")");
    silence(desk_.ring.after(deck));
    desk_.chain.chemin_precedent = desk_.list.chemin_fichier;
    desk_.chain.choix_prepare = false;
    desk_.chain.chargement_fait = false;
}

/// A deck whose track is cut short goes back to its beginning: where the bar stands behind it no deck starts.
void DeckStart::silence(Deck& deck) {
    const bool moved = deck.controls.progress.value != 0;
    mix_.release(deck);
    if (!moved)
        return;
    clear_display(deck);
    desk_.display.waits(deck);
}

void DeckStart::clear_display(Deck& deck) {
    desk_.display.rewound(deck);
    deck.controls.scroll_timer.disable();
    if (has_classic_video_ending(desk_.chain.extension_fichier))
        deck.close_video();
}

} // namespace sonarelle
