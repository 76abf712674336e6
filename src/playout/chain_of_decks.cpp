#include <algorithm>

#include "platform/failure.h"
#include "playout/auto_chain.h"

namespace sonarelle {

AutoChain::AutoChain(Desk& desk, DeckLoading& loading, DeckStart& start, MixEngine& mix, Journal& journal,
                     RunControl& run, RecordReading& reading)
    : desk_{desk}, loading_{loading}, start_{start}, mix_{mix}, journal_{journal}, run_{run}, reading_{reading},
      load_walk_{"load_walk", desk.platform.scheduler}, mix_walk_{"mix_walk", desk.platform.scheduler},
      random_order_{desk.platform.random} {}

void AutoChain::Timer2_tick() {
    if (desk_.chain.chaine_suspendue.is_true() || desk_.chain.mode_enchainement.is_true())
        return;
    trap_of("T2")([this] { deck_tick(); });
}

void AutoChain::deck_tick() {
    if (desk_.is_manual())
        return manual_display();
    if (desk_.window.Active_audio_jingles.checked) {
        desk_.window.Active_audio_zapping.checked = false;
        if (mix_.serve_special_mix())
            desk_.window.Active_audio_zapping.checked = true;
        if (desk_.has_main_deck() && desk_.main_deck().has_graph())
            show_deck_progress(desk_.main_deck());
        return;
    }
    if (!desk_.has_main_deck()) {
        desk_.window.Label10.caption = "Chargement rapide";
        return;
    }
    Deck& deck = desk_.main_deck();
    show_deck_progress(deck);
    if (deck.whole_position() == desk_.settings.prechargement)
        deck.controls.zap.enabled = true;
    const Integer point = deck.end_point() - desk_.settings.mix_courant;
    // A file that is shorter than its overlap has no mix point: its end is what the next one follows.
    if (point <= 0 && !has_played_out(deck))
        return;
    if (!desk_.window.coche2.value())
        return manual_display();
    desk_.window.Label10.caption = " Mix lecteur : Play " + deck.name();
    desk_.chain.ligne_journal = "Mix lecteur : Play" + deck.name();
    desk_.window.Label7.caption = "Play " + deck.name() + " : player mix a " + text_of(point);
    if (is_due(deck, point))
        play_ring(deck.number());
    else
        desk_.list_window.Label16.caption = "Play " + deck.name() + " Mix lecteur";
}

void AutoChain::show_deck_progress(Deck& deck) {
    const Integer position = deck.whole_position();
    desk_.window.Label5.caption = text_of(position);
    deck.controls.progress.value = position.value();
    if (position != 0)
        desk_.small_player.label1.caption = text_of(deck.whole_duration() - position);
}

bool AutoChain::is_due(Deck& deck, Integer point) {
    return has_played_out(deck) || desk_.elapsed() == point;
}

bool AutoChain::has_played_out(const Deck& deck) {
    return deck.controls.progress.percent() == 100 || deck.is_at_its_end();
}

// An overlap of 0 sets the next deck going too, and so on round the ring until a start sets another overlap. A turn
// that changed nothing ends with this tick.
void AutoChain::play_ring(int first) {
    desk_.window.Timer2.set_interval(0);
    for (int deck = first, turns = 0; turns < 3; deck = next_deck(deck), ++turns) {
        desk_.deck(deck).controls.title.caption = std::string{waiting_title};
        start_.press_play(desk_.deck(next_deck(deck)));
        if (desk_.settings.mix_courant != 0)
            break;
    }
    desk_.window.Timer2.set_interval(desk_.settings.valeur_vitesse_timer);
}

void AutoChain::manual_display() {
    desk_.window.Label7.caption = desk_.window.Désactive_audio.checked ? "Fondu audio désactivé" : "Mode manuel";
    for (Deck& deck : desk_.decks) {
        if (!deck.has_graph())
            return;
        if (!deck.path.empty())
            deck.controls.progress.value = deck.whole_position().value();
    }
}

void AutoChain::Timer3_tick() {
    if (desk_.window.Désactive_audio.checked)
        return mix_.Pas_demix_audio();
    if (!desk_.has_main_deck())
        return;
    try {
        overlap_tick();
    } catch (const Failure& failure) {
        // Without its fade the list still plays on.
        desk_.window.Timer3.disable();
        desk_.warn(std::string{failure.what()} + "\n" + std::to_string(failure.number));
    }
}

void AutoChain::overlap_tick() {
    Deck& main = desk_.main_deck();
    Deck& old = desk_.deck(previous_deck(main.number()));
    desk_.window.Label5.caption = text_of(main.whole_position());
    const Integer limit = desk_.chain.position_zap + desk_.settings.mix_audio;
    if (desk_.window.Active_audio_zapping.checked || desk_.window.Active_audio.checked)
        fade(old);
    // Nothing follows a stopped chain's last track: at its end the old one would go on in its place.
    const bool is_last = desk_.chain.air == AirState::failed && main.is_at_its_end();
    if (desk_.elapsed() == limit || is_last)
        release(main, old);
}

void AutoChain::fade(Deck& old) {
    constexpr int quietest = -4000;
    constexpr int step = 10;
    if (!old.has_graph() || old.graph().get_Volume().count() == quietest)
        return;
    if (faded_deck_ != old.number()) {
        faded_deck_ = old.number();
        desk_.report({.kind = OnAirEvent::Kind::fade_began, .deck = old.number()});
    }
    ErrorIndicator{}.skip([&] {
        const int volume = std::max(quietest, old.graph().get_Volume().count() - step);
        old.graph().put_Volume(Millibel{volume});
        const double share = static_cast<double>(quietest) / volume;
        old.controls.slider.show_value(to_integer(old.controls.slider.maximum / share).value());
        DeckVolume::show(old);
    });
}

void AutoChain::release(Deck& main, Deck& old) {
    mix_.leave_special_mix(old);
    old.controls.title.caption = std::string{waiting_title};
    if (old.has_graph()) {
        old.graph().Stop();
        desk_.report({.kind = OnAirEvent::Kind::cut, .deck = old.number()});
    }
    old.controls.progress.value = 0;
    old.controls.counter.caption = "0";
    desk_.window.Label7.caption = desk_.station_banner();
    old.controls.zap.enabled = false;
    main.controls.zap.enabled = true;
    desk_.window.Timer3.disable();
    old.controls.slider.set_value(0);
    desk_.list_window.Image2.enabled = true;
    desk_.list_window.Label12.caption = "Zapping autorisé";
    desk_.small_player.Command2.visible = true;
    if (!desk_.is_manual())
        old.drop_graph();
}

} // namespace sonarelle
