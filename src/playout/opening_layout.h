#pragma once

#include "platform/screen.h"

namespace sonarelle {

/// Where the two great windows come up: the desk above, the list below it, nothing covered.
struct OpeningLayout {
    Twips left, top; ///< Of the desk.
    Twips width;     ///< Of both.
    Twips desk_height;
    Twips list_height;
};

/// The list is no lower than this.
inline constexpr Twips least_list_height{230 * 15};
/// Of the list below the desk.
inline constexpr Twips docked_list_height{4400};

/// Both as wide as the screen lets them be and in the middle of it; a screen that has room for both in their large
/// step gets that. On one that has no room for the list, the desk takes all. `title_bar`: what the desktop puts above
/// a window.
[[nodiscard]] OpeningLayout opening_layout(const ScreenArea& screen, Twips title_bar);

} // namespace sonarelle
