#include "playout/display_menu.h"

#include <algorithm>
#include <cstdlib>

namespace sonarelle {

namespace {

constexpr int frame_thickness = 600; // twips: a title bar and a little

} // namespace

void DisplayMenu::choose_view(const MenuItem& view) {
    desk_.window.topmost = &view == &desk_.window.affiche_toujour;
    check_only(desk_.window.views(), view);
}

// The small player's menu chooses a view while the main window is hidden, and there must be a way back to it.
void DisplayMenu::show_main_window(WindowState state) {
    desk_.window.state = state;
    desk_.window.show();
}

void DisplayMenu::Affiche_barre_Click() {
    choose_view(desk_.window.Affiche_barre);
    desk_.list_window.hide();
    desk_.small_player.hide();
    show_main_window(WindowState::minimised);
}

void DisplayMenu::Affiche_Fenetre_L_Click() {
    choose_view(desk_.window.Affiche_Fenetre_L);
    desk_.window.Aligner_liste.enabled = true;
    desk_.list_window.state = WindowState::normal;
    desk_.list_window.show();
    show_main_window(WindowState::minimised);
}

void DisplayMenu::Affiche_Fenetre_P_Click() {
    choose_view(desk_.window.Affiche_Fenetre_P);
    desk_.window.Aligner_liste.enabled = false;
    show_main_window(WindowState::normal);
    desk_.list_window.hide();
}

void DisplayMenu::affiche_tout_Click() {
    choose_view(desk_.window.affiche_tout);
    desk_.window.Aligner_liste.enabled = true;
    show_main_window(WindowState::normal);
    if (desk_.list_window.state == WindowState::minimised)
        desk_.list_window.state = WindowState::normal;
    desk_.list_window.show();
}

void DisplayMenu::affiche_toujour_Click() {
    choose_view(desk_.window.affiche_toujour);
    desk_.window.show();
}

void DisplayMenu::place(Twips left, Twips top) {
    const ScreenArea screen = desk_.platform.screen();
    desk_.window.left = screen.left + left;
    desk_.window.top = screen.top + top;
}

Twips DisplayMenu::room_beside() const {
    return desk_.platform.screen().width - desk_.window.width.get();
}

void DisplayMenu::A_centre_lecteur_Click() {
    const Twips room_below = desk_.platform.screen().height - desk_.window.height.get();
    place(Twips{room_beside().count() / 2}, Twips{room_below.count() / 2});
}

void DisplayMenu::A_centre_lecteur_haut_Click() {
    place(Twips{room_beside().count() / 2}, Twips{});
}

void DisplayMenu::a_droite_haut_Click() {
    place(room_beside(), Twips{});
}

void DisplayMenu::a_gauche_haut_Click() {
    place(Twips{}, Twips{});
}

void DisplayMenu::change_corner() {
    if (cote_haut_)
        a_gauche_haut_Click();
    else
        a_droite_haut_Click();
    cote_haut_ = !cote_haut_;
}

void DisplayMenu::Aligner_liste_Click() {
    list_follows_ = true;
    place_list_below(desk_.window.left, desk_.window.width);
}

void DisplayMenu::liste_pleine_largeur_Click() {
    list_follows_ = false;
    const ScreenArea screen = desk_.platform.screen();
    place_list_below(screen.left, screen.width);
}

// A list that isn't on view keeps the place that was stored for it.
void DisplayMenu::Aligne_liste_son() {
    const Liste_son& list = desk_.list_window;
    if (!list_follows_ || !list.visible || list.state != WindowState::normal)
        return;
    place_list_below(desk_.window.left, desk_.window.width);
}

// At a first start both windows have one place.
void DisplayMenu::uncover_main_window() {
    const auto near = [](Twips a, Twips b) { return std::abs((a - b).count()) < frame_thickness; };
    const Liste_son& list = desk_.list_window;
    if (list.state == WindowState::normal && near(list.left, desk_.window.left) && near(list.top, desk_.window.top))
        place_list_below(desk_.window.left, desk_.window.width);
}

// A list that would stand below the screen's lower edge covers the main window's foot instead.
void DisplayMenu::place_list_below(Twips left, Twips width) {
    Liste_son& list = desk_.list_window;
    const ScreenArea screen = desk_.platform.screen();
    const Twips lowest = screen.top + screen.height - list.height.get();
    list.left = left;
    list.width = width;
    list.top = std::max(screen.top, std::min(desk_.window.top.get() + desk_.window.height.get(), lowest));
}

void DisplayMenu::a_mini_Click() {
    desk_.list_window.hide();
    desk_.window.hide();
    desk_.small_player.state = WindowState::normal;
    desk_.small_player.topmost = true;
    desk_.small_player.show();
}

void DisplayMenu::ouvrir_liste_Click() {
    desk_.list_window.state = WindowState::normal;
    desk_.list_window.show();
}

void DisplayMenu::hide_menus() {
    if (active_text_combo)
        active_text_combo();
    for (MenuItem* menu : desk_.window.menu_bar)
        menu->visible = false;
    for (Label* label : desk_.window.menu_labels())
        label->visible = true;
    desk_.warning.hide();
    change_height(height_with_menus, height_without_menus);
}

void DisplayMenu::show_menus() {
    for (MenuItem* menu : desk_.window.menu_bar)
        menu->visible = true;
    for (Label* label : desk_.window.menu_labels())
        label->visible = false;
    change_height(height_without_menus, height_with_menus);
}

// A size that the operator gave is his.
void DisplayMenu::change_height(Twips from, Twips to) {
    if (desk_.window.height.get() == from)
        desk_.window.height = to;
}

} // namespace sonarelle
