#include "playout/display_menu.h"

#include <algorithm>
#include <cstdlib>

namespace sonarelle {

namespace {

constexpr int frame_thickness = 600; // twips: a title bar and a little

} // namespace

void DisplayMenu::choose_view(const MenuItem& view) {
    window_.topmost = &view == &window_.affiche_toujour;
    check_only(window_.views(), view);
}

// The small player's menu chooses a view while the main window is hidden, and there must be a way back to it.
void DisplayMenu::show_main_window(WindowState state) {
    window_.state = state;
    window_.show();
}

void DisplayMenu::show_as_bar() {
    choose_view(window_.Affiche_barre);
    list_.hide();
    small_player_.hide();
    show_main_window(WindowState::minimised);
}

void DisplayMenu::show_list_alone() {
    choose_view(window_.Affiche_Fenetre_L);
    window_.Aligner_liste.enabled = true;
    list_.state = WindowState::normal;
    list_.show();
    show_main_window(WindowState::minimised);
}

void DisplayMenu::show_main_window_alone() {
    choose_view(window_.Affiche_Fenetre_P);
    window_.Aligner_liste.enabled = false;
    show_main_window(WindowState::normal);
    list_.hide();
}

void DisplayMenu::affiche_tout_Click() {
    choose_view(window_.affiche_tout);
    window_.Aligner_liste.enabled = true;
    show_main_window(WindowState::normal);
    if (list_.state == WindowState::minimised)
        list_.state = WindowState::normal;
    list_.show();
}

void DisplayMenu::keep_on_top() {
    choose_view(window_.affiche_toujour);
    window_.show();
}

void DisplayMenu::place(Twips left, Twips top) {
    const ScreenArea screen = platform_.screen();
    window_.left = screen.left + left;
    window_.top = screen.top + top;
}

Twips DisplayMenu::room_beside() const {
    return platform_.screen().width - window_.width.get();
}

void DisplayMenu::centre() {
    const Twips room_below = platform_.screen().height - window_.height.get();
    place(Twips{room_beside().count() / 2}, Twips{room_below.count() / 2});
}

void DisplayMenu::centre_at_top() {
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

void DisplayMenu::align_list() {
    list_follows_ = true;
    place_list_below(window_.left, window_.width);
}

void DisplayMenu::widen_list() {
    list_follows_ = false;
    const ScreenArea screen = platform_.screen();
    place_list_below(screen.left, screen.width);
}

// A list that isn't on view keeps the place that was stored for it.
void DisplayMenu::Aligne_liste_son() {
    if (!list_follows_ || !list_.visible || list_.state != WindowState::normal)
        return;
    place_list_below(window_.left, window_.width);
}

// At a first start both windows have one place.
void DisplayMenu::uncover_main_window() {
    const auto near = [](Twips a, Twips b) { return std::abs((a - b).count()) < frame_thickness; };
    if (list_.state == WindowState::normal && near(list_.left, window_.left) && near(list_.top, window_.top))
        place_list_below(window_.left, window_.width);
}

// A list that would stand below the screen's lower edge covers the main window's foot instead.
void DisplayMenu::place_list_below(Twips left, Twips width) {
    const ScreenArea screen = platform_.screen();
    const Twips lowest = screen.top + screen.height - list_.height.get();
    list_.left = left;
    list_.width = width;
    list_.top = std::max(screen.top, std::min(window_.top.get() + window_.height.get(), lowest));
}

void DisplayMenu::a_mini_Click() {
    list_.hide();
    window_.hide();
    small_player_.state = WindowState::normal;
    small_player_.topmost = true;
    small_player_.show();
}

void DisplayMenu::open_list_window() {
    list_.state = WindowState::normal;
    list_.show();
}

void DisplayMenu::hide_menus() {
    if (active_text_combo)
        active_text_combo();
    for (MenuItem* menu : window_.menu_bar)
        menu->visible = false;
    for (Label* label : window_.menu_labels())
        label->visible = true;
    warning_.hide();
    change_height(height_with_menus, height_without_menus);
}

void DisplayMenu::show_menus() {
    for (MenuItem* menu : window_.menu_bar)
        menu->visible = true;
    for (Label* label : window_.menu_labels())
        label->visible = false;
    change_height(height_without_menus, height_with_menus);
}

// A size that the operator gave is his.
void DisplayMenu::change_height(Twips from, Twips to) {
    if (window_.height.get() == from)
        window_.height = to;
}

} // namespace sonarelle
