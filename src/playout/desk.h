#pragma once

#include <functional>

#include "platform/platform.h"
#include "playlist/liste_son.h"
#include "playout/deck_ring.h"
#include "playout/desk_display.h"
#include "playout/notices.h"
#include "playout/on_air_event.h"
#include "state/chain_state.h"
#include "state/list_state.h"
#include "state/station_settings.h"
#include "windows/antenne_fm.h"

namespace sonarelle {

/// What the routines of the decks and of the chain work on: the shared variables, the windows and the decks.
struct Desk {
    const Platform& platform;
    StationSettings& settings;
    ListState& list;
    ChainState& chain;
    Antenne_FM& window;
    Liste_son& list_window;
    Notices& notices;
    DeskDisplay& display;
    DeckRing& ring;
    std::function<void(const OnAirEvent&)> on_event = {};

    [[nodiscard]] bool is_manual() const { return window.a_mode_manuel.checked; }
    /// The chain over decks is chosen. A hard stop of the list shows it without choosing it.
    [[nodiscard]] bool mixes_titles() const { return window.mix_titles.value() && !chain.mode_enchainement.is_true(); }
    /// The elapsed second of the main deck, as the label has it. @throws Failure 13 for a text that is no number.
    [[nodiscard]] Integer elapsed() const { return to_integer(window.elapsed.caption.get(), platform.decimal_mark); }
    [[nodiscard]] int row_count() const { return list_window.rows.count(); }

    void report(const OnAirEvent& event) const {
        if (on_event)
            on_event(event);
    }
    /// Keeps whether the air is to sound, and whether a list can be started.
    void set_air(AirState state);
    /// The main deck plays a row of the list, and the list chain follows.
    [[nodiscard]] bool list_runs() const;
    /// The list can be started while it doesn't run.
    void show_list_start() const;
    /// The row that was drawn or loaded ahead isn't the one to come: the chain goes on from the one that plays.
    void give_prepared_row_up() const;
    /// Reports that a deck holds the current row's file.
    void report_loaded(const Deck& deck) const;
};

} // namespace sonarelle
