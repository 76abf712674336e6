// What the soak's operator does with random order, the insertions and what belongs to them.
#include <array>

#include "playout/soak_operator.h"

namespace sonarelle {

void SoakOperator::switch_an_insertion() {
    const bool jingles = world_.happens(50);
    say(jingles ? "jingles" : "items");
    const bool by_label = world_.happens(50);
    if (jingles)
        by_label ? list().jingles_status.click() : list().jingles_switch.click();
    else
        by_label ? list().items_status.click() : list().items_switch.click();
}

void SoakOperator::choose_spacing() {
    StationSettings& settings = world_.station.settings;
    settings.nb_fichier_aleatoire = world_.below(6);
    settings.nb_fichier_aleatoire1 = world_.below(3);
}

void SoakOperator::choose_order() {
    MenuItem& entry = world_.happens(60) ? window().A_ordre_aléatoire : window().A_ordre_continue;
    say(entry.name());
    entry.click();
}

void SoakOperator::repair_the_table() {
    liste& draws = world_.station.draw_window;
    window().Afficher_C_aleatoire.click();
    const std::array buttons{&draws.reload, &draws.clear_lists, &draws.clear_table, &draws.add_current, &draws.close};
    Button& button = *buttons[static_cast<std::size_t>(world_.below(5))];
    say(button.caption);
    const int presses = 1 + world_.below(3);
    for (int press = 0; press < presses; ++press)
        button.click();
    draws.close.click();
}

void SoakOperator::listen_to_a_row() {
    world_.rows().click(1 + world_.below(world_.rows().count()));
    say("row " + std::to_string(world_.rows().selected()));
    if (world_.main_deck() == 0)
        oracle_.expect_cut();
    list().A_ecoute.click();
}

void SoakOperator::choose_prelisten() {
    if (world_.station.chain.preecoute_active.is_false())
        dialogs().expect_input(world_.any_of({"40", "20", "90", "x"}));
    list().A_precoute.click();
}

void SoakOperator::make_a_random_list() {
    if (world_.rows().count() > 600 || !list().creer_aleatoire.is_reachable())
        return;
    dialogs().expect_open(soak_short_list);
    list().creer_aleatoire.click();
}

} // namespace sonarelle
