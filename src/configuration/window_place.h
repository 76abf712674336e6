#pragma once

#include <string_view>

#include "platform/platform.h"
#include "platform/window.h"

namespace sonarelle {

/// The keys under which a window's place is kept, in section "Position", and its size, where it has one of its own.
struct PlaceKeys {
    std::string_view top, left;
    std::string_view width{}, height{};
};

inline constexpr PlaceKeys main_window_place{"Position_haut", "Position_gauche", "Largeur", "Hauteur"};
inline constexpr PlaceKeys list_window_place{"Position_haut_liste", "Position_gauche_liste", "Largeur_liste",
                                             "Hauteur_liste"};
inline constexpr PlaceKeys small_player_place{"Position_haut_mini_lecteur", "Position_gauche_mini_lecteur"};

/// Gives a window the size that was stored; false where there is none, or none that a window could have.
[[nodiscard]] bool restore_size(const Platform& platform, Window& window, const PlaceKeys& keys);

/// Stores where a window stands and how large it is. A store that refuses it is passed over: a window closes all the
/// same.
void store_place(const Platform& platform, const Window& window, const PlaceKeys& keys);

} // namespace sonarelle
