#include "playout/mix.h"

#include <algorithm>
#include <utility>

#include "configuration/settings_store.h"
#include "platform/dialogs.h"
#include "platform/failure.h"
#include "playout/air_view.h"
#include "playout/mix_times.h"

namespace sonarelle {

MixEngine::MixEngine(Desk& desk, DeckVolume& volume)
    : desk_{desk},
      volume_{volume} {
    for (Deck& deck : desk_.ring.decks)
        deck.on_graph_leaves = [this, &deck] { leave_special_mix(deck); };
}

bool MixEngine::is_mode_defined() const {
    return desk_.chain.mode_enchainement.is_true() || desk_.chain.mode_enchainement.is_false();
}

void MixEngine::Choix_mix() {
    StationSettings& s = desk_.settings;
    const Integer end = desk_.ring.main_deck().end_point();
    if (end >= 0 && is_mode_defined()) {
        const MixTimes times = mix_times(s, end);
        if (times.is_normal && desk_.chain.mode_enchainement.is_false())
            desk_.window.load_ahead.set_value(1);
        s.mix_courant = times.overlap;
        s.prechargement = times.load_lead;
        desk_.display.overlap();
    }
    if (s.prechargement <= s.mix_courant)
        s.prechargement = s.mix_courant + 3;
    desk_.display.overlap_hints();
}

void MixEngine::change_overlap(int step) {
    try {
        const Integer shown = to_integer(desk_.window.overlap.text(), desk_.platform.decimal_mark);
        set_overlap(std::max(Integer{1}, shown + step));
    } catch (const Failure& failure) {
        show_box(desk_.platform.dialogs, failure.what(), Icon::stop);
    }
}

void MixEngine::set_overlap(Integer seconds) {
    StationSettings& s = desk_.settings;
    s.mix_courant = s.mix_defaut = seconds;
    s.prechargement = s.prechargement_defaut;
    if (seconds == s.prechargement)
        s.prechargement += 2;
    else if (seconds == s.prechargement - 1)
        s.prechargement += 3;
    desk_.display.overlap();
    store_overlap();
}

void MixEngine::take_overlap_steps() {
    desk_.settings.mix_courant = desk_.settings.mix_defaut = desk_.window.overlap_steps.value();
    desk_.display.overlap();
    store_overlap();
}

void MixEngine::store_overlap() {
    const SettingsStore store{desk_.platform};
    ErrorIndicator{}.skip([&] { store.write(setting_section::config, "Mix", text_of(desk_.settings.mix_defaut)); });
}

void MixEngine::choose_load_ahead() {
    const bool on = desk_.window.load_ahead.value() == 1;
    desk_.window.load_ahead_timer.set_enabled(on);
    desk_.settings.prechargement = on ? desk_.settings.prechargement_defaut : Integer{0};
    desk_.display.overlap_hints();
}

void MixEngine::choose_rule(MenuItem& rule) {
    end_special_mix();
    check_only(desk_.window.fade_rules(), rule);
}

void MixEngine::choose_no_fade() {
    choose_rule(desk_.window.Désactive_audio);
    desk_.chain.mode_enchainement = false;
    desk_.window.deck_chain_timer.disable();
}

void MixEngine::Pas_demix_audio() {
    if (desk_.ring.has_main_deck())
        release(desk_.ring.before(desk_.ring.main_deck()));
}

void MixEngine::release(Deck& deck) {
    const bool sounds = deck.sounds();
    deck.drop_graph();
    if (sounds)
        desk_.report({.kind = OnAirEvent::Kind::cut, .deck = deck.number()});
}

void MixEngine::special_mix(Deck& deck) {
    if (desk_.ring.is_main(deck))
        return;
    deck.create_graph();
    // Only the third deck's mix resumes a chain that was suspended.
    if (deck.number() == 3)
        desk_.chain.chaine_suspendue = false;
    const bool started = !deck.path.empty() && ErrorIndicator{}.skip([&] { start_special_mix(deck); });
    if (!started)
        desk_.display.is_empty(deck);
}

void MixEngine::start_special_mix(Deck& deck) {
    desk_.display.can_be_paused(deck);
    deck.graph().RenderFile(deck.path);
    end_special_mix();
    const Integer whole = deck.whole_duration();
    desk_.display.ends_at(deck, text_of(whole));
    deck.controls.progress.maximum = whole.value();
    volume_.adjust(deck);
    volume_.vol_pour_mix_spc();
    desk_.chain.lecteur_mix_special = deck.number();
    deck.graph().Run();
    choose_special_mix_rule();
    desk_.chain.ecoute_demandee = false;
    deck.mix_en_cours = 1;
    desk_.display.special_mix_began(deck, whole);
    ErrorIndicator{}.skip([&] { warn_of_long_mix(deck); });
}

void MixEngine::warn_of_long_mix(const Deck& deck) {
    if (main_role(desk_) != DeckRole::on_air || !waits_for_special_mix(desk_))
        return;
    const Deck& main = desk_.ring.main_deck();
    const Integer left = main.end_point() - desk_.settings.mix_courant - main.whole_position();
    if (left > 0 && deck.whole_duration() > left)
        desk_.notices.warn("Le mixage spécial dure " + text_of(deck.whole_duration()) +
                           " s\nLe titre à l'antenne s'enchaîne dans " + text_of(left) +
                           " s\nLa suite attendra la fin du mixage");
}

void MixEngine::end_special_mix() {
    const Integer number = std::exchange(desk_.chain.lecteur_mix_special, 0);
    if (number < 1 || number > 3)
        return;
    Deck& deck = desk_.ring.deck(number.value());
    deck.mix_en_cours = 0;
    desk_.display.special_mix_ended(deck);
    volume_.vol_pour_stop();
    if (!desk_.window.Active_audio_jingles.checked)
        return;
    desk_.window.Active_audio_jingles.checked = false;
    if (!desk_.chain.mode_enchainement.is_true())
        desk_.window.Active_audio_zapping.checked = true;
}

void MixEngine::leave_special_mix(const Deck& deck) {
    if (desk_.chain.lecteur_mix_special == deck.number())
        end_special_mix();
}

bool MixEngine::serve_special_mix() {
    if (desk_.chain.lecteur_mix_special < 1 || desk_.chain.lecteur_mix_special > 3) {
        desk_.display.no_chain_runs();
        desk_.window.Active_audio_jingles.checked = false;
        return true;
    }
    Deck& deck = desk_.ring.deck(desk_.chain.lecteur_mix_special.value());
    deck.controls.progress.value = deck.whole_position().value();
    if (deck.whole_duration() != deck.whole_position())
        return false;
    end_special_mix();
    return true;
}

void MixEngine::manuel_mix() {
    desk_.display.light_deck_chain_alone();
    desk_.window.load_ahead_timer.disable();
    desk_.window.load_ahead.set_value(0);
}

void MixEngine::select_bouton() {
    if (desk_.ring.has_main_deck())
        desk_.display.arrange_buttons_round(desk_.ring.main_deck());
}

} // namespace sonarelle
