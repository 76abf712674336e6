#include "playout/opening_layout.h"

#include <algorithm>

#include "windows/antenne_fm.h"

namespace sonarelle {

namespace {

constexpr Twips greatest_width{1920 * 15};
constexpr Twips large_width{1600 * 15};
constexpr Twips large_desk{672 * 15};
constexpr Twips large_list{360 * 15};

Twips half(Twips length) {
    return Twips{length.count() / 2};
}

} // namespace

OpeningLayout opening_layout(const ScreenArea& screen, Twips title_bar) {
    OpeningLayout layout;
    layout.width = std::min(screen.width, greatest_width);
    const Twips room = screen.height - title_bar - title_bar;
    if (screen.width >= large_width && room >= large_desk + large_list) {
        layout.desk_height = large_desk;
        layout.list_height = large_list;
    } else if (room >= height_with_menus + least_list_height) {
        layout.desk_height = room >= height_with_menus + docked_list_height ? height_with_menus : height_without_menus;
        layout.list_height = std::min(docked_list_height, room - layout.desk_height);
    } else {
        layout.desk_height = layout.list_height = screen.height - title_bar;
    }
    const bool covers = layout.desk_height + title_bar == screen.height;
    const Twips whole = covers ? screen.height : layout.desk_height + layout.list_height + title_bar + title_bar;
    layout.left = screen.left + half(screen.width - layout.width);
    layout.top = screen.top + half(screen.height - whole);
    return layout;
}

} // namespace sonarelle
