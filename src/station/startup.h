#pragma once

#include <functional>
#include <string>

#include "accessories/chargement.h"
#include "configuration/settings_load.h"
#include "configuration/settings_rewrite.h"
#include "playlist/list_document.h"
#include "playout/chain_modes.h"
#include "playout/deck_loading.h"
#include "playout/desk.h"
#include "playout/desk_commands.h"
#include "playout/journal.h"
#include "playout/list_run.h"
#include "playout/mix.h"
#include "playout/option_menu.h"
#include "playout/quick_load.h"

namespace sonarelle {

/// From the program's entry to a main window that is ready: splash, settings, first start, pictures, command line.
/// Window thread.
class Startup {
public:
    struct Parts {
        Desk& desk;
        ListState& list;
        mini_lecteur& small_player;
        Chargement& splash;
        SettingsLoad& load;
        SettingsRewrite& rewrite;
        Journal& journal;
        ListDocument& document;
        ChainModes& modes;
        ListRun& list_run;
        DeckLoading& loading;
        QuickLoad& quick_load;
        OptionMenu& options;
        DeskCommands& commands;
        MixEngine& mix;
        std::function<void(Deck&)> press_play;
    };

    explicit Startup(Parts parts);

    /// The program begins: the splash is shown. `command_line` is one file name in double quotes, or empty. The rest
    /// comes when the splash is on the screen (`splash.activate()`).
    void enter_program(const std::string& command_line);

    /// What a run of the station finds: the settings are read, nothing plays.
    void read_settings();

    /// Gives the windows their size and, at a first start, their place.
    std::function<void()> arrange_windows;
    /// The list that was asked for has come up, perhaps over the main window.
    std::function<void()> show_desk_first;
    /// Loads the picture of the file manager, by its file's name, where there is one.
    std::function<void(const std::string& file)> show_file_manager_picture;

private:
    void read_first_settings();
    void show_splash();
    void activate_splash();
    void initialise();
    /// True when the main window comes on view.
    [[nodiscard]] bool create();
    void create_under_trap();
    void load_pictures();
    void load_picture(Property<std::string>& picture, const std::string& file);
    void greet_first_start();
    void store_program_folder();
    void act_on_command_line();
    void détecte_ext();
    [[nodiscard]] bool is_there(const std::string& list);
    void play_on_small_player();
    void report(const Failure& failure);

    Parts parts_;
    const Platform& platform_;
    StationSettings& settings_;
    Antenne_FM& window_;
    std::string ligne_commande_;
    bool splash_waits_ = false;
    bool shows_main_window_ = false;
};

} // namespace sonarelle
