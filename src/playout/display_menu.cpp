#include "playout/display_menu.h"

#include <algorithm>
#include <cstdlib>

#include "configuration/window_place.h"
#include "playout/opening_layout.h"

namespace sonarelle {

namespace {

constexpr int frame_thickness = 600; // twips: a title bar and a little
constexpr Twips usual_frame{24 * 15};
constexpr Twips never_placed{100}; // what a first start stores

} // namespace

void DisplayMenu::choose_view(const MenuItem& view) {
    window_.topmost = &view == &window_.affiche_toujour;
    check_only(window_.views(), view);
}

// Windows come and go by other ways, too. While the small player stands for the main one, the view is that to come.
void DisplayMenu::mark_view_on_screen() {
    window_.Aligner_liste.enabled = list_.visible.get();
    if (!window_.visible)
        return;
    const bool reduced = window_.state == WindowState::minimised;
    check_only(window_.views(), window_.topmost            ? window_.affiche_toujour
                                : reduced && list_.visible ? window_.Affiche_Fenetre_L
                                : reduced                  ? window_.Affiche_barre
                                : list_.visible            ? window_.affiche_tout
                                                           : window_.Affiche_Fenetre_P);
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
    if (window_.state == WindowState::minimised)
        window_.state = WindowState::normal;
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

// At a first start both windows have one place, and the first to come is placed before its frame is known.
void DisplayMenu::uncover_main_window() {
    const auto near = [](Twips a, Twips b) { return std::abs((a - b).count()) < frame_thickness; };
    const bool hides = near(list_.top, window_.top) || near(list_.top, window_.top.get() + window_.height.get());
    if (list_.state == WindowState::normal && near(list_.left, window_.left) && hides)
        place_list_below(window_.left, window_.width);
}

// On a screen that can't hold both, what plays is seen first; the list comes by its key.
void DisplayMenu::show_desk_first() {
    const auto covers = [](Twips start, Twips length, Twips other_start, Twips other_length) {
        return start <= other_start && start + length >= other_start + other_length;
    };
    if (covers(list_.left, list_.width, window_.left, window_.width) &&
        covers(list_.top, list_.height, window_.top, window_.height))
        list_.hide();
}

// A list that finds too little room below is lower, and below a desk that was moved down it covers its foot. On a
// screen that can't hold both it takes all, and the operator has one window or the other before him.
void DisplayMenu::place_list_below(Twips left, Twips width) {
    const ScreenArea screen = platform_.screen();
    const Twips frame = window_.frame_height();
    const Twips below = window_.top.get() + window_.height.get() + frame;
    const Twips foot = screen.top + screen.height - frame;
    list_.left = left;
    list_.width = width;
    if (screen.height - frame - frame < window_.height.get() + least_list_height)
        list_.height = screen.height - frame;
    else if (foot - below >= least_list_height)
        list_.height = std::min(list_.height.get(), foot - below);
    list_.top = std::max(screen.top, std::min(below, foot - list_.height.get()));
}

void DisplayMenu::open_windows() {
    const Twips frame = std::max(window_.frame_height(), usual_frame);
    const OpeningLayout layout = opening_layout(platform_.screen(), frame);
    if (!restore_size(platform_, window_, main_window_place)) {
        window_.width = layout.width;
        window_.height = layout.desk_height;
    }
    if (!restore_size(platform_, list_, list_window_place)) {
        list_.width = layout.width;
        list_.height = layout.list_height;
    }
    if (window_.left.get() != never_placed || window_.top.get() != never_placed)
        return;
    window_.left = layout.left;
    window_.top = layout.top;
    place_list_below(window_.left, window_.width);
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

void DisplayMenu::close_list() {
    list_.hide();
    store_place(platform_, list_, list_window_place);
    check_only(window_.views(), *window_.views().front());
    if (!window_.visible || window_.state == WindowState::minimised)
        show_main_window(WindowState::normal);
}

bool DisplayMenu::is_list_docked() const {
    if (list_docked_)
        return *list_docked_;
    return list_.left.get() == window_.left.get() && list_.width.get() == window_.width.get() &&
           list_.height.get() <= docked_list_height && list_.top.get() > window_.top.get();
}

void DisplayMenu::dock_list() {
    if (!is_list_docked())
        free_place_ = Place{list_.left, list_.top, list_.width, list_.height};
    list_docked_ = true;
    list_.state = WindowState::normal;
    list_.height = docked_list_height;
    align_list();
}

void DisplayMenu::free_list() {
    const ScreenArea screen = platform_.screen();
    const Place whole{screen.left, screen.top, screen.width, screen.height - list_.frame_height()};
    const Place place = free_place_.value_or(whole);
    list_docked_ = false;
    list_follows_ = false;
    list_.state = WindowState::normal;
    list_.left = place.left;
    list_.top = place.top;
    list_.width = place.width;
    list_.height = place.height;
}

void DisplayMenu::toggle_list_place() {
    if (is_list_docked())
        free_list();
    else
        dock_list();
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
