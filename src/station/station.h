#pragma once

#include "accessories/about_windows.h"
#include "accessories/chargement.h"
#include "accessories/propriete.h"
#include "accessories/track_properties.h"
#include "configuration/form_options.h"
#include "configuration/settings_load.h"
#include "configuration/settings_rewrite.h"
#include "platform/platform.h"
#include "playlist/fsauve.h"
#include "playlist/legacy_list.h"
#include "playlist/list_document.h"
#include "playlist/list_save_dialog.h"
#include "playlist/liste_son.h"
#include "playlist/record_reading.h"
#include "playlist/row_to_deck.h"
#include "playout/air_watch.h"
#include "playout/auto_chain.h"
#include "playout/chain_modes.h"
#include "playout/deck_loading.h"
#include "playout/deck_ring.h"
#include "playout/deck_start.h"
#include "playout/deck_transport.h"
#include "playout/deck_volume.h"
#include "playout/desk.h"
#include "playout/desk_display.h"
#include "playout/draw_control.h"
#include "playout/journal.h"
#include "playout/list_rescue.h"
#include "playout/list_run.h"
#include "playout/mix.h"
#include "playout/notices.h"
#include "playout/prelisten.h"
#include "playout/row_cursor.h"
#include "playout/row_draw.h"
#include "playout/row_listening.h"
#include "playout/run_control.h"
#include "playout/zapping.h"
#include "state/chain_state.h"
#include "state/list_state.h"
#include "state/station_settings.h"
#include "station/desk_wiring.h"
#include "station/drawn_rows.h"
#include "station/list_maintenance.h"
#include "station/list_wiring.h"
#include "windows/antenne_fm.h"
#include "windows/err_form.h"
#include "windows/mini_lecteur.h"

namespace sonarelle {

/// One station: the windows' state, the shared variables and the parts that work on them. There may be several in one
/// process. Window thread; the platform outlives it.
class Station {
public:
    explicit Station(const Platform& platform);
    Station(const Station&) = delete;
    Station& operator=(const Station&) = delete;

    /// Begins as the program does: splash, settings, pictures, and what the command line names (one file name in
    /// double quotes, or nothing). A first start ends at once.
    void start(const std::string& command_line);

    /// Reads the settings and makes the main window ready, and no more: for a run without a desk.
    void create_main_window() { desk_wiring.startup.read_settings(); }

    /// True once the operator or a routine has ended the program.
    [[nodiscard]] bool ended() const { return ended_; }
    void end();
    /// Called once, when the program has ended: its loop stops.
    std::function<void()> on_end;

    [[nodiscard]] const Platform& platform() const { return platform_; }

    /// Every window, in the order of creation.
    [[nodiscard]] std::vector<Window*> windows();

    /// What the keys of both great windows do: pause, and the volume of the main deck in steps.
    void pause_or_go_on();
    void step_volume(int steps);

    /// The play and stop buttons of a deck.
    void press_play(Deck& deck);
    void stop_deck(Deck& deck);

private:
    Platform platform_;
    bool ended_ = false;

public:
    StationSettings settings;
    ListState list;
    ChainState chain;

    Antenne_FM main_window;
    Liste_son list_window;
    Form_options options_window;
    mini_lecteur small_player;
    err_form warning_window;
    fsauve progress_window;
    Propriete properties_window{platform_.scheduler};
    Chargement splash;
    frmAbout about_window;
    vbplus update_window;
    liste draw_window;
    DeckRing deck_ring;
    Notices notices;
    DeskDisplay desk_display;
    Desk desk;

    SettingsLoad settings_load;
    SettingsRewrite settings_rewrite;
    RecordReading record_reading;
    ListDocument list_document;
    ListSaveDialog list_save_dialog;
    LegacyList legacy_list;

    Journal journal;
    DeckVolume deck_volume;
    MixEngine mix_engine;
    DeckLoading deck_loading;
    DeckStart deck_start;
    DeckTransport deck_transport;
    RunControl run_control;
    DrawTables draw_tables{platform_.random};
    DrawControl draw_control{draw_window, draw_tables, list, chain, list_window.rows};
    RowDraw row_draw{desk, journal, draw_tables, draw_control};
    RowCursor row_cursor;
    AutoChain auto_chain;
    Zapping zapping;
    ChainModes chain_modes;
    ListRun list_run;
    ListRescue list_rescue;
    AirWatch air_watch;
    RowToDeck row_to_deck;
    RowListening row_listening;
    Prelisten prelisten{desk};
    ListMaintenance list_maintenance;
    DrawnRows drawn_rows;
    TrackProperties track_properties;
    DeskWiring desk_wiring{*this};
    ListWiring list_wiring{*this};

private:
    void connect_list_window();
    void connect_reading_modes();
    void connect_timers();
    void connect_chain_choices();
    void connect_menus();
    void connect_keys();
    void press_list_key();
    void connect_play_menu();
    void connect_deck(Deck& deck);
    void warn_of_null_volume();
    void load_row_on_deck(int deck, const DestinationRecord& row);
};

} // namespace sonarelle
