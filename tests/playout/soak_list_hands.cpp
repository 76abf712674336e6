// What the soak's operator does with the chain, the list and the windows.
#include <array>

#include "playout/soak_operator.h"

namespace sonarelle {

void SoakOperator::choose_fade_rule() {
    MenuItem* rule = window().fade_rules()[static_cast<std::size_t>(world_.below(4))];
    say(rule->name());
    rule->click();
}

void SoakOperator::choose_list_mode() {
    const std::array options{&list().random_mode, &list().defined_end_mode, &list().full_length_mode};
    const std::array pictures{&list().random_lamp, &list().defined_end_lamp, &list().full_length_lamp};
    const auto which = static_cast<std::size_t>(world_.below(3));
    say(options[which]->name());
    if (world_.happens(60))
        options[which]->click();
    else
        pictures[which]->click();
}

void SoakOperator::leave_the_list() {
    const int way = world_.below(6);
    if (way == 0)
        return click_option(window().mix_titles);
    if (way == 1)
        return click_option(list().player_mode);
    const std::array images{&window().deck_chain_lamp, &list().player_lamp};
    const std::array entries{&window().a_mode_auto, &list().A_a_zapping};
    const auto which = static_cast<std::size_t>(way % 2);
    say(way < 4 ? images[which]->name() : entries[which]->name());
    if (way < 4)
        images[which]->click();
    else
        entries[which]->click();
}

void SoakOperator::go_back_to_the_list() {
    const int way = world_.below(6);
    if (way == 0)
        return click_option(window().mix_list);
    if (way == 1)
        return press(U'l');
    if (way == 2)
        return window().list_chain_lamp.click();
    if (way == 3)
        return window().a_mode_predefini.click();
    if (way == 4)
        return list().A_a_zapping.click();
    choose_list_mode();
}

void SoakOperator::choose_by_hand() {
    for (int deck = 1; deck <= 3; ++deck)
        if (world_.deck(deck).path.empty())
            open_on(deck, world_.any_of(world_.jingles), {});
    window().a_mode_manuel.click();
}

void SoakOperator::change_overlap() {
    const int way = world_.below(4);
    if (way == 0)
        return window().overlap_less.click();
    if (way == 1)
        return window().overlap_more.click();
    if (way == 2)
        return window().overlap_steps.set_value(1 + world_.below(20));
    window().overlap.set_text(world_.any_of({"4", "9", "", "x"}));
    say("\"" + window().overlap.text() + "\"");
}

void SoakOperator::click_preload() {
    window().load_ahead.click();
}

void SoakOperator::look_at_list() {
    if (world_.happens(50))
        return world_.rows().click(1 + world_.below(world_.rows().count()));
    list().show_playing_row.click();
}

// By the picture, which is there for a list that doesn't run, or by the menu's entry for what stands on the first deck.
void SoakOperator::start_list_again() {
    oracle_.expect_cut();
    if (world_.happens(50))
        return list().play_list.click();
    say("lect_liste");
    list().lect_liste.click();
}

void SoakOperator::send_row_to_deck() {
    const int deck = any_deck();
    world_.rows().click(1 + world_.below(world_.rows().count()));
    say("row " + std::to_string(world_.rows().selected()) + " to deck " + std::to_string(deck));
    list().Load_Pl.open();
    if (deck != world_.main_deck() && world_.deck(deck).sounds())
        dialogs().expect_box("est à l'antenne", world_.happens(50) ? Answer::yes : Answer::no);
    list().deck_loads()[static_cast<std::size_t>(deck - 1)]->click();
}

void SoakOperator::edit_rows() {
    const int row = 1 + world_.below(world_.rows().count());
    world_.rows().click(row);
    const int way = world_.below(3);
    if (way == 0) {
        dialogs().expect_input(world_.any_of({"0.50", "2.00", "0.10"}));
        return list().a_debutpiste_fichier.click();
    }
    if (way == 1)
        return list().a_mettre_a_jour.click();
    list().modifier_chemin.click();
    world_.rows().click(row);
    world_.rows().edit_label(row, world_.any_of(world_.happens(80) ? world_.jingles : world_.tracks));
    list().modifier_chemin_non.click();
    oracle_.accept_list();
}

void SoakOperator::edit_list() {
    const bool volume = world_.happens(50);
    if (volume)
        dialogs().expect_box("Continuez", Answer::yes);
    dialogs().expect_input(volume ? "90" : "0.20");
    if (volume)
        list().Modifier_volume.click();
    else
        list().a_debutpiste.click();
}

void SoakOperator::test_list() {
    oracle_.accept_test_of_list();
    list().prechar.click();
    oracle_.accept_test_of_list();
}

void SoakOperator::test_row() {
    const int row = 1 + world_.below(world_.rows().count());
    say("row " + std::to_string(row));
    world_.rows().click(row);
    oracle_.accept_test_of_list();
    list().prechar_fich.click();
}

void SoakOperator::merge_a_list() {
    if (world_.happens(30))
        return list().A_liste.click(); // and leaves its dialog
    if (world_.rows().count() > 600)
        return;
    dialogs().expect_open(soak_short_list);
    list().A_liste.click();
    oracle_.accept_list();
}

void SoakOperator::save_list() {
    dialogs().expect_save("C:\\Sonarelle\\copie.dfm");
    list().A_enreg_sous.click();
}

void SoakOperator::update_list() {
    oracle_.accept_test_of_list();
    list().a_mettre_a_jour_liste.click();
    oracle_.accept_test_of_list();
}

void SoakOperator::ask_to_quit() {
    press(world_.happens(50) ? U'q' : U'\x1b');
}

void SoakOperator::look_around() {
    const std::array entries{&window().Affiche_Fenetre_P,
                             &window().Affiche_Fenetre_L,
                             &window().affiche_tout,
                             &window().affiche_toujour,
                             &window().a_mini,
                             &window().ouvrir_liste,
                             &window().lire_play,
                             &window().Active_journal,
                             &window().A_desacive_J};
    MenuItem* entry = entries[static_cast<std::size_t>(world_.below(static_cast<int>(entries.size())))];
    say(entry->name());
    entry->open();
    entry->click();
    world_.station.small_player.show_main_window.click();
}

void SoakOperator::lose_a_place() {
    MusicPlace& place = world_.places[static_cast<std::size_t>(1 + world_.below(3))];
    world_.toggle(place);
    say(place.folder + (place.gone ? " goes" : " comes back"));
}

} // namespace sonarelle
