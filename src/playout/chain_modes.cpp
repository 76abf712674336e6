#include "playout/chain_modes.h"

#include <algorithm>
#include <optional>

#include "platform/calendar_text.h"
#include "platform/dialogs.h"
#include "platform/failure.h"
#include "platform/scheduler.h"
#include "platform/text.h"
#include "playout/source_draw.h"

namespace sonarelle {

void ChainModes::choose_manual_mode() {
    const bool all_loaded = std::ranges::none_of(desk_.ring.decks, [](const Deck& deck) { return deck.path.empty(); });
    if (!all_loaded) {
        desk_.notices.inform("les trois lecteurs doivent etre chargés\navant de passer en mode manuel ");
        return;
    }
    mix_.end_special_mix(); // which no chain would end
    enter(running_mode::by_hand);
    desk_.window.mix_titles.set_value(true); // which, by hand, chooses no chain
    desk_.display.decks_wait_for_hands();
    desk_.chain.lecteur_en_cours = 0;
    desk_.set_air(AirState::off);
}

void ChainModes::choose_deck_chain() {
    enter(running_mode::over_decks);
    desk_.display.decks_can_be_chained();
    desk_.list_window.player_mode.set_value(true);
}

void ChainModes::choose_list_chain() {
    enter(running_mode::of_list);
    mix_.choose_list_fade();
    desk_.display.list_fade_offered(true);
    desk_.window.overlap.set_text(text_of(desk_.settings.mix_courant));
    desk_.display.list_has_no_mix_point();
}

void ChainModes::enter(const RunningMode& mode) {
    const auto set_timer = [](Timer& timer, std::optional<bool> runs) {
        if (runs)
            timer.set_enabled(*runs);
    };
    if (mode.entry)
        check_only(desk_.window.chain_modes(), desk_.window.*mode.entry);
    if (mode.from_list)
        desk_.chain.mode_enchainement = *mode.from_list;
    if (mode.by_draw)
        take_order(*mode.by_draw);
    set_timer(desk_.window.load_ahead_timer, mode.looks_ahead);
    set_timer(desk_.window.deck_chain_timer, mode.chains_decks);
    set_timer(desk_.window.list_chain_timer, mode.chains_list);
    if (mode.resets_interval)
        desk_.window.deck_chain_timer.set_interval(desk_.settings.valeur_vitesse_timer);
    if (mode.list_entry)
        desk_.list_window.A_a_zapping.checked = *mode.list_entry;
    if (mode.offers_prelisten)
        desk_.display.prelisten_offered(*mode.offers_prelisten);
    if (mode.offers_special_mix)
        for (Deck& deck : desk_.ring.decks)
            desk_.display.special_mix_offered(deck, *mode.offers_special_mix);
    desk_.show_list_start();
}

void ChainModes::toggle_list_chain() {
    if (desk_.chain.mode_enchainement.is_false()) {
        desk_.settings.mix_courant = 1;
        desk_.window.overlap.set_text("1");
        mix_.choose_list_fade();
        enter(running_mode::list_entry_on);
        desk_.list_window.defined_end_mode.set_value(true);
        desk_.display.list_fade_offered(true);
    } else if (desk_.chain.mode_enchainement.is_true()) {
        enter(running_mode::list_entry_off);
        desk_.list_window.player_mode.set_value(true);
    } else {
        desk_.list_window.A_a_zapping.checked = false;
    }
}

// By hand it stands for the manual mode.
void ChainModes::choose_mix_titles() {
    if (desk_.is_manual())
        return;
    choose_deck_chain();
    desk_.list.index_en_cours = 1;
    desk_.display.list_fade_offered(false);
    desk_.display.list_is_mixed_by("Mix lecteur");
}

void ChainModes::choose_mix_list() {
    try {
        desk_.display.list_is_mixed_by("Mix liste");
        enter(running_mode::mix_list);
        desk_.display.list_fade_offered(true);
        desk_.display.zap_fade_offered();
        desk_.chain.chaine_suspendue = false;
        desk_.window.load_ahead.set_value(1);
        read_overlap();
    } catch (const Failure& failure) {
        tell_failed_choice(failure);
    }
}

// The rescue chooses the list in a tick, behind which no box may hold up the air.
void ChainModes::tell_failed_choice(const Failure& failure) {
    const std::string text = "Une erreur est apparue !\n - " + failure.source + " - " + failure.description + " - " +
                             digits_of(failure.number) +
                             "\nC'est peut etre la premiere exécution du programme\n"
                             "Vérifier et entrez toutes les valeurs dans le menu options du programme.\n"
                             "Vérifier également vos paramètres régionaux si erreur type incompatible\n"
                             "La séparation des décimales pour les nombres doit ètre un point\nEssayer a nouveau !";
    if (desk_.platform.scheduler.in_tick())
        desk_.notices.warn(text);
    else
        show_box(desk_.platform.dialogs, text, Icon::stop);
}

void ChainModes::read_overlap() {
    if (desk_.window.overlap.text().empty())
        desk_.window.overlap.set_text("2");
    desk_.settings.mix_courant = to_integer(desk_.window.overlap.text(), desk_.platform.decimal_mark);
    desk_.window.overlap.set_text(text_of(desk_.settings.mix_courant));
}

void ChainModes::choose_player_mode() {
    end_insertions();
    desk_.chain.preecoute_active = false;
    enter(running_mode::read_decks);
    check_entries(desk_.window.a_mode_auto);
    note({"Lecteur - Lecture continue auto", "Lecteur - Lecture continue auto / Mix : "});
    mix_.choose_zap_fade(); // which ends a special mix
    desk_.display.prelisten_is(false);
    desk_.display.light_reading_mode(desk_.list_window.player_lamp);
    if (desk_.list_window.visible)
        desk_.window.visible = true; // from which the decks are played
    if (desk_.ring.has_main_deck())
        show_end_point(desk_.ring.main_deck().duree_piste);
}

void ChainModes::end_insertions() {
    clear_insertions();
    desk_.settings.valide_fichier_aleatoire = false;
    desk_.display.insertions_off();
    desk_.chain.jingles_aleatoires = false;
}

void ChainModes::clear_insertions() {
    desk_.settings.valide_fichier_aleatoire1 = false;
    desk_.display.items_off();
    desk_.chain.compteur_aleatoire = desk_.chain.compteur_aleatoire1 = 0;
    desk_.window.item_timer.disable();
}

void ChainModes::choose_random_mode() {
    desk_.chain.jingles_aleatoires = desk_.settings.valide_fichier_aleatoire;
    choose_list_mode(running_mode::read_by_draw,
                     {"Liste - Lecture aléatoire", "Liste - Lecture aléatoire auto / Mix : "});
    desk_.display.light_reading_mode(desk_.list_window.random_lamp);
    control_.head(DrawControl::Lists::of_list, "Lecture aléatoire");
    control_.clear_lists();
    if (desk_.chain.jingles_aleatoires.is_true() && !names_a_source(desk_.settings.chemin_fichier_aleatoire1))
        tell_missing_source();
}

void ChainModes::tell_missing_source() {
    const Answer answer =
        desk_.platform.dialogs.MsgBox({"La lecture peut etre activée directement sur le bouton lecture\n"
                                       "Si aucun fichier par défaut n'a été choisi dans les paramètres\n"
                                       "Choisissez en un dans la boite de dialogue suivante\n"
                                       "Vous avez la possibilité également si cela n'a pas été effectué,\n"
                                       "de charger une liste de votre choix et désactiver les jingles",
                                       "Lecture aléatoire avec jingles aléatoire", Buttons::yes_no, Icon::information});
    if (answer == Answer::no)
        desk_.notices.inform("Pas de chargement de liste.");
}

void ChainModes::choose_defined_end_mode() {
    choose_list_order({"Liste - Lecture fin de piste définie", "Liste - Lecture Début / fin de piste définie/ Mix : "},
                      desk_.list_window.defined_end_lamp);
}

void ChainModes::choose_full_length_mode() {
    choose_list_order({"Liste - Lecture durée piste", "Liste - Lecture Début / durée piste - Mix : "},
                      desk_.list_window.full_length_lamp);
}

void ChainModes::choose_list_order(const ReadingModeWords& words, Image& lamp) {
    clear_insertions();
    choose_list_mode(running_mode::read_in_order, words);
    desk_.display.light_reading_mode(lamp);
    desk_.display.prelisten_offered(true);
}

void ChainModes::choose_order(bool random) {
    Liste_son& list = desk_.list_window;
    if (random && list.reads_the_list())
        return list.random_mode.set_value(true);
    if (!random && list.random_mode.value())
        return list.defined_end_mode.set_value(true);
    take_order(random);
    desk_.display.prelisten_offered(!random && desk_.chain.mode_enchainement.is_true());
    if (random)
        desk_.chain.jingles_aleatoires = desk_.settings.valide_fichier_aleatoire;
    journal_.note_of_list_window(date_and_time(desk_.platform) + (random ? " Lecture aléatoire" : " Lecture continue"));
}

// What random order has closed opens again on every way out of it.
void ChainModes::take_order(bool random) {
    if (desk_.chain.ordre_aleatoire.is_true() != random)
        desk_.give_prepared_row_up();
    desk_.chain.ordre_aleatoire = random;
    desk_.display.order_is(random);
    if (!random && desk_.list_window.random_mode.value())
        leave_random_mode();
}

// A choice that isn't made in the list window: its modes show what is read, and can be chosen anew.
void ChainModes::leave_random_mode() {
    Liste_son& list = desk_.list_window;
    const bool reads_list = desk_.chain.mode_enchainement.is_true();
    list.random_mode.show_value(false);
    if (reads_list)
        list.defined_end_mode.show_value(true);
    desk_.display.light_switch(list.random_lamp, false);
    desk_.display.light_switch(list.defined_end_lamp, reads_list);
}

void ChainModes::note(const ReadingModeWords& words) {
    const bool mixes = desk_.chain.lecteur_mix_special != 0;
    journal_.note_of_list_window(
        date_and_time(desk_.platform) + " " +
        (mixes ? std::string{words.over_a_mix} + text_of(desk_.settings.mix_courant) : std::string{words.plain}));
}

void ChainModes::choose_list_mode(const RunningMode& mode, const ReadingModeWords& words) {
    take_stopped_list_up();
    enter(mode);
    check_entries(desk_.window.a_mode_predefini);
    note(words);
    mix_.choose_list_fade(); // which ends a special mix
    desk_.display.list_has_no_mix_point();
    if (!desk_.ring.has_main_deck())
        return;
    Deck& deck = desk_.ring.main_deck();
    // The full length, where it is chosen, holds from the next load on.
    const bool capped = desk_.chain.preecoute_active.is_true() && deck.has_graph();
    show_end_point(capped ? text_of(std::min(desk_.chain.duree_preecoute, deck.whole_duration())) : deck.fin_piste);
}

// A fault that stopped the list shows the chain over decks as chosen. Here the list goes on with the track that sounds.
void ChainModes::take_stopped_list_up() {
    if (desk_.chain.air != AirState::failed || !desk_.ring.has_main_deck() || !desk_.ring.main_deck().sounds())
        return;
    desk_.window.mix_list.show_value(true);
    desk_.display.list_is_mixed_by("Mix liste");
    desk_.display.light_list_chain();
    desk_.set_air(AirState::on);
}

// The manual mode is left by its own menu alone, however the list is to be read.
void ChainModes::check_entries(const MenuItem& mode) {
    if (!desk_.is_manual())
        check_only(desk_.window.chain_modes(), mode);
    desk_.list_window.A_a_zapping.checked = &mode == &desk_.window.a_mode_predefini;
}

void ChainModes::show_end_point(const std::string& text) {
    if (!text.empty())
        desk_.display.ends_at(desk_.ring.main_deck(), text);
}

void ChainModes::press_list_key() {
    if (!desk_.is_manual()) {
        desk_.window.mix_list.set_value(true);
        return;
    }
    desk_.notices.inform("Vous ètes en mode manuel\nModifiez cette option pour une lecture de liste");
    desk_.window.mix_titles.set_value(true);
    desk_.display.light_deck_chain();
}

void ChainModes::press_deck_chain_lamp() {
    choose_deck_chain();
    end_insertions(); // also where the decks are read already
    for (Timer* timer : {&desk_.window.jingle_timer, &desk_.window.item_timer})
        timer->disable();
    desk_.window.overlap_timer.enable();
    desk_.display.light_reading_mode(desk_.list_window.player_lamp);
}

void ChainModes::press_list_chain_lamp() {
    Liste_son& list = desk_.list_window;
    desk_.display.light_reading_mode(list.full_length_lamp);
    desk_.window.mix_list.set_value(true);
    list.show();
    desk_.display.list_has_no_mix_point();
    desk_.display.light_list_chain();
    list.full_length_mode.set_value(true);
    enter(running_mode::list_lamp);
}

} // namespace sonarelle
