#pragma once

#include "accessories/err_form.h"
#include "accessories/mini_lecteur.h"
#include "configuration/form_options.h"
#include "configuration/settings_load.h"
#include "configuration/settings_rewrite.h"
#include "configuration/station_settings.h"
#include "platform/platform.h"
#include "playlist/legacy_list.h"
#include "playlist/list_document.h"
#include "playlist/list_save_dialog.h"
#include "playlist/list_state.h"
#include "playlist/liste_son.h"
#include "playlist/record_reading.h"
#include "playlist/row_to_deck.h"
#include "playlist/working_records.h"
#include "playout/antenne_fm.h"
#include "playout/chain_state.h"
#include "playout/deck_record.h"

namespace sonarelle {

/// One station: the windows' state, the shared variables and the parts that work on them. There may be several in one
/// process. Window thread; the platform outlives it.
class Station {
public:
    explicit Station(const Platform& platform);
    Station(const Station&) = delete;
    Station& operator=(const Station&) = delete;

    /// True once the operator or a routine has ended the program.
    [[nodiscard]] bool ended() const { return ended_; }

private:
    Platform platform_;
    bool ended_ = false;

public:
    StationSettings settings;
    ListState list;
    ChainState chain;
    DestinationRecord destination;
    DraggedRecord dragged;

    Antenne_FM main_window;
    Liste_son list_window;
    Form_options options_window;
    mini_lecteur small_player;
    err_form warning_window;

    SettingsLoad settings_load;
    SettingsRewrite settings_rewrite;
    RecordReading record_reading;
    DeckRecord deck_record;
    ListDocument list_document;
    ListSaveDialog list_save_dialog;
    LegacyList legacy_list;
    RowToDeck row_to_deck;

private:
    void connect_events();
    void warn_of_null_volume();
};

} // namespace sonarelle
