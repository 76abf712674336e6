#pragma once

#include "accessories/about_commands.h"
#include "accessories/small_player.h"
#include "playout/desk_commands.h"
#include "playout/display_menu.h"
#include "playout/option_menu.h"
#include "playout/quick_load.h"
#include "station/shutdown.h"
#include "station/startup.h"

namespace sonarelle {

class Station;

/// What the main window's menus, boxes and keys, the small player and the about windows do, and how the program begins
/// and ends: the parts, connected to the station's windows.
class DeskWiring {
public:
    explicit DeskWiring(Station& station);
    DeskWiring(const DeskWiring&) = delete;
    DeskWiring& operator=(const DeskWiring&) = delete;

    DisplayMenu display_menu;
    DeskCommands desk_commands;
    QuickLoad quick_load;
    OptionMenu option_menu;
    AboutCommands about;
    Startup startup;
    Shutdown shutdown;
    SmallPlayer small_player;

    /// Gives all windows the colours of the settings.
    void paint_windows();

private:
    void connect_display_menu();
    void connect_desk_commands();
    void connect_option_menu();
    void connect_quick_load();
    void connect_windows();
    void connect_menu_labels();
    void answer_for_missing_windows();

    Station& station_;
};

} // namespace sonarelle
