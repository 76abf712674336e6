#pragma once

#include <string_view>

#include "platform/platform.h"
#include "platform/window.h"

namespace sonarelle {

/// The keys under which a window's place is kept, in section "Position".
struct PlaceKeys {
    std::string_view top, left;
};

inline constexpr PlaceKeys main_window_place{"Position_haut", "Position_gauche"};
inline constexpr PlaceKeys list_window_place{"Position_haut_liste", "Position_gauche_liste"};
inline constexpr PlaceKeys small_player_place{"Position_haut_mini_lecteur", "Position_gauche_mini_lecteur"};

/// Stores where a window stands. A store that refuses it is passed over: a window closes all the same.
void store_place(const Platform& platform, const Window& window, const PlaceKeys& keys);

} // namespace sonarelle
