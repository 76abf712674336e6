#pragma once

#include <functional>
#include <optional>

#include "platform/platform.h"
#include "playlist/liste_son.h"
#include "windows/antenne_fm.h"
#include "windows/err_form.h"
#include "windows/mini_lecteur.h"

namespace sonarelle {

/// Which windows are on view, and where they stand.
class DisplayMenu {
public:
    DisplayMenu(const Platform& platform, Antenne_FM& window, Liste_son& list, mini_lecteur& small_player,
                err_form& warning)
        : platform_{platform},
          window_{window},
          list_{list},
          small_player_{small_player},
          warning_{warning} {}

    void show_as_bar();
    void show_list_alone();
    void show_main_window_alone();
    void affiche_tout_Click();
    void keep_on_top();
    /// The mark is with the one that is on the screen.
    void mark_view_on_screen();

    void centre();
    void centre_at_top();
    void a_droite_haut_Click();
    void a_gauche_haut_Click();
    /// The key "²": one upper corner, then the other.
    void change_corner();

    /// Below the main window: as wide as it, or as wide as the screen.
    void align_list();
    void widen_list();
    /// The main window has moved: the list goes with it, below it and as wide, unless it has the screen's width.
    void Aligne_liste_son();
    /// The list has come to the front: where it would hide the main window, it goes below it.
    void uncover_main_window();

    /// Both as they come up: as large as they were left, else as the screen lets them be; at a first start docked in
    /// the middle of the screen.
    void open_windows();
    /// Puts away a list that came up over the whole main window.
    void show_desk_first();

    /// The small player takes the main window's place.
    void a_mini_Click();
    void open_list_window();
    /// The list goes and its place is kept; where it was alone on view, the main window comes.
    void close_list();

    /// Docked below the main window, or free: where the operator had it, else over the whole screen.
    void dock_list();
    void free_list();
    void toggle_list_place();

    /// The menu bar hidden and shown again, with the labels that stand for it.
    void hide_menus();
    void show_menus();

    /// Writes what the quick load boxes are for, before the window shrinks.
    std::function<void()> active_text_combo;

private:
    void choose_view(const MenuItem& view);
    void show_main_window(WindowState state);
    void place(Twips left, Twips top);
    void place_list_below(Twips left, Twips width);
    void change_height(Twips from, Twips to);
    /// What the main window leaves of the screen's width.
    [[nodiscard]] Twips room_beside() const;

    const Platform& platform_;
    Antenne_FM& window_;
    Liste_son& list_;
    mini_lecteur& small_player_;
    err_form& warning_;
    struct Place {
        Twips left, top, width, height;
    };
    [[nodiscard]] bool is_list_docked() const;

    bool cote_haut_ = false;
    std::optional<bool> list_docked_; // by the operator; before that its place tells
    std::optional<Place> free_place_; // of the list, while it is docked
    bool list_follows_ = true;
};

} // namespace sonarelle
