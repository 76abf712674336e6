#include "playout/mix.h"

#include <algorithm>
#include <utility>

#include "configuration/settings_store.h"
#include "platform/dialogs.h"
#include "platform/failure.h"
#include "playout/air_view.h"

namespace sonarelle {

MixEngine::MixEngine(Desk& desk, DeckVolume& volume)
    : desk_{desk},
      volume_{volume} {
    for (Deck& deck : desk_.decks)
        deck.on_graph_leaves = [this, &deck] { leave_special_mix(deck); };
}

bool MixEngine::is_mode_defined() const {
    return desk_.chain.mode_enchainement.is_true() || desk_.chain.mode_enchainement.is_false();
}

void MixEngine::Choix_mix() {
    struct Row {
        Integer longest;  ///< End point up to which the row holds, seconds.
        bool overlaps;    ///< By the settings' overlap of a short item.
        int further_lead; ///< Load lead beyond that overlap, seconds; 0 for no lead at all.
    };
    StationSettings& s = desk_.settings;
    const std::array rows{Row{1, false, 0}, Row{3, true, 0}, Row{6, true, 1}, Row{s.valeur_max_jingles, true, 3}};
    const Integer end = desk_.main_deck().end_point();
    if (end >= 0 && is_mode_defined()) {
        const auto* row = std::ranges::find_if(rows, [end](const Row& r) { return end <= r.longest; });
        const bool normal = row == rows.end();
        if (normal && desk_.chain.mode_enchainement.is_false())
            desk_.window.load_ahead.set_value(1);
        if (normal) {
            s.mix_courant = s.mix_defaut;
            s.prechargement = s.prechargement_defaut;
        } else {
            s.mix_courant = row->overlaps ? s.forcer_mix_jingles : Integer{0};
            s.prechargement = row->further_lead > 0 ? s.forcer_mix_jingles + row->further_lead : Integer{0};
        }
        show_overlap();
    }
    if (s.prechargement <= s.mix_courant)
        s.prechargement = s.mix_courant + 3;
    show_hints();
}

void MixEngine::show_overlap() {
    desk_.window.overlap.set_text(text_of(desk_.settings.mix_courant));
    show_hints();
    desk_.window.overlap_steps.show_value(desk_.settings.mix_courant.value());
}

void MixEngine::show_hints() {
    const StationSettings& s = desk_.settings;
    desk_.window.overlap.hint = "Superposition de : " + text_of(s.mix_courant) + " seconde(s)";
    desk_.window.load_ahead.hint = "Préchargement (" + text_of(s.prechargement) + " s avant le mix) ";
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
    show_overlap();
    store_overlap();
}

void MixEngine::take_overlap_steps() {
    desk_.settings.mix_courant = desk_.settings.mix_defaut = desk_.window.overlap_steps.value();
    show_overlap();
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
    show_hints();
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
    if (desk_.has_main_deck())
        release(desk_.deck(previous_deck(desk_.chain.lecteur_en_cours.value())));
}

void MixEngine::release(Deck& deck) {
    const bool sounds = deck.sounds();
    deck.drop_graph();
    if (sounds)
        desk_.report({.kind = OnAirEvent::Kind::cut, .deck = deck.number()});
}

void MixEngine::special_mix(Deck& deck) {
    if (desk_.chain.lecteur_en_cours == deck.number())
        return;
    deck.create_graph();
    // Only the third deck's mix resumes a chain that was suspended.
    if (deck.number() == 3)
        desk_.chain.chaine_suspendue = false;
    const bool started = !deck.path.empty() && ErrorIndicator{}.skip([&] { start_special_mix(deck); });
    if (!started)
        deck.controls.title.caption = std::string{empty_title};
}

void MixEngine::start_special_mix(Deck& deck) {
    deck.controls.pause.enabled = true;
    deck.graph().RenderFile(deck.path);
    end_special_mix();
    const std::string whole = text_of(deck.whole_duration());
    deck.controls.counter.caption = whole;
    deck.controls.progress.maximum = deck.whole_duration().value();
    volume_.adjust(deck);
    volume_.vol_pour_mix_spc();
    desk_.chain.lecteur_mix_special = deck.number();
    deck.graph().Run();
    deck.controls.progress.caption = "Mixage spécial en cours (" + whole + " S)";
    choose_special_mix_rule();
    desk_.chain.ecoute_demandee = false;
    desk_.window.chain_status.caption = desk_.station_banner();
    deck.mix_en_cours = 1;
    deck.controls.special_mix.enabled = false;
    ErrorIndicator{}.skip([&] { warn_of_long_mix(deck); });
}

void MixEngine::warn_of_long_mix(const Deck& deck) {
    if (main_role(desk_) != DeckRole::on_air || !waits_for_special_mix(desk_))
        return;
    const Deck& main = desk_.main_deck();
    const Integer left = main.end_point() - desk_.settings.mix_courant - main.whole_position();
    if (left > 0 && deck.whole_duration() > left)
        desk_.warn("Le mixage spécial dure " + text_of(deck.whole_duration()) +
                   " s\nLe titre à l'antenne s'enchaîne dans " + text_of(left) +
                   " s\nLa suite attendra la fin du mixage");
}

void MixEngine::end_special_mix() {
    const Integer number = std::exchange(desk_.chain.lecteur_mix_special, 0);
    if (number < 1 || number > 3)
        return;
    Deck& deck = desk_.deck(number.value());
    deck.mix_en_cours = 0;
    deck.controls.progress.value = 0;
    deck.controls.progress.caption = "";
    deck.controls.special_mix.enabled = true;
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
        desk_.window.running_chain.caption = "Chargement rapide";
        desk_.window.Active_audio_jingles.checked = false;
        return true;
    }
    Deck& deck = desk_.deck(desk_.chain.lecteur_mix_special.value());
    deck.controls.progress.value = deck.whole_position().value();
    if (deck.whole_duration() != deck.whole_position())
        return false;
    end_special_mix();
    return true;
}

void MixEngine::manuel_mix() {
    desk_.window.list_chain_lamp.picture = "";
    desk_.window.deck_chain_lamp.picture = std::string{lamp_on_picture};
    desk_.window.load_ahead_timer.disable();
    desk_.window.load_ahead.set_value(0);
}

void MixEngine::select_bouton() {
    if (!desk_.has_main_deck())
        return;
    for (Deck& deck : desk_.decks) {
        const bool main = desk_.chain.lecteur_en_cours == deck.number();
        deck.controls.play.enabled = main;
        deck.controls.zap.enabled = main;
        deck.controls.open.enabled = !main;
    }
}

} // namespace sonarelle
