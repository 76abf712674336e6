#pragma once

#include <functional>
#include <string>

#include "playout/desk_display.h"
#include "playout/display_menu.h"
#include "playout/quick_load.h"

namespace sonarelle {

/// The paths of the settings that the operator chooses from the option menu.
enum class StationPath { jingles, music, audio_editor };

/// The settings that the option menu edits, each of which is stored at once, and the banner.
class OptionMenu {
public:
    OptionMenu(const Platform& platform, StationSettings& settings, Antenne_FM& window, DeskDisplay& desk_display,
               DisplayMenu& display, QuickLoad& quick_load)
        : platform_{platform},
          settings_{settings},
          window_{window},
          desk_display_{desk_display},
          display_{display},
          quick_load_{quick_load} {}

    void ask_station_name();
    void define_jingle_folder() { define(StationPath::jingles); }
    void define_music_folder() { define(StationPath::music); }
    void define_audio_editor() { define(StationPath::audio_editor); }
    /// Takes a path that was chosen, shows it on its entry and stores it. Nothing for an empty one.
    void store_path(StationPath which, const std::string& path);

    void choose_banner();
    void A_Rafraichir_Click();

    /// Opens a window in which the operator chooses a path, which then calls `store_path`. Without one an input box
    /// asks for it.
    std::function<void(StationPath)> open_chooser;

    /// The station's name on the windows: the program's own, with its version, where the station has none.
    void show_station_name();

private:
    void define(StationPath which);

    const Platform& platform_;
    StationSettings& settings_;
    Antenne_FM& window_;
    DeskDisplay& desk_display_;
    DisplayMenu& display_;
    QuickLoad& quick_load_;
};

} // namespace sonarelle
