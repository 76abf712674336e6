#pragma once

#include <array>
#include <functional>

#include "platform/platform.h"
#include "playlist/liste_son.h"
#include "playout/deck.h"
#include "playout/on_air_event.h"
#include "state/chain_state.h"
#include "state/list_state.h"
#include "state/station_settings.h"
#include "windows/antenne_fm.h"
#include "windows/err_form.h"
#include "windows/mini_lecteur.h"

namespace sonarelle {

/// What the routines of the decks and of the chain work on: the shared variables, the windows and the decks.
struct Desk {
    const Platform& platform;
    StationSettings& settings;
    ListState& list;
    ChainState& chain;
    Antenne_FM& window;
    Liste_son& list_window;
    err_form& warning;
    mini_lecteur& small_player;
    std::array<Deck, 3> decks;
    std::function<void(const OnAirEvent&)> on_event = {};
    std::function<void(const std::string&)> on_warning = {};

    [[nodiscard]] Deck& deck(int number) { return decks.at(static_cast<std::size_t>(number - 1)); }
    [[nodiscard]] bool has_main_deck() const { return chain.lecteur_en_cours >= 1 && chain.lecteur_en_cours <= 3; }
    /// @throws Failure 91 without one.
    [[nodiscard]] Deck& main_deck();
    [[nodiscard]] const Deck& main_deck() const;

    [[nodiscard]] bool is_manual() const { return window.a_mode_manuel.checked; }
    /// The chain over decks is chosen. A hard stop of the list shows it without choosing it.
    [[nodiscard]] bool mixes_titles() const { return window.mix_titles.value() && !chain.mode_enchainement.is_true(); }
    /// The elapsed second of the main deck, as the label has it. @throws Failure 13 for a text that is no number.
    [[nodiscard]] Integer elapsed() const { return to_integer(window.elapsed.caption.get(), platform.decimal_mark); }
    [[nodiscard]] int row_count() const { return list_window.rows.count(); }
    [[nodiscard]] std::string station_banner() const { return "- - " + settings.nom_radio + " - -"; }

    /// Names the file that came on a deck, which another can follow again.
    void show_on_small_player(const std::string& name);
    /// Shows lines in the warning window without waiting for the operator.
    void warn(const std::string& lines);
    /// The same of a file that is missing. The names of others that the operator hasn't read yet stay with it.
    void warn_of_file(const std::string& heading, const std::string& path, const std::string& last_line);
    /// Writes them into it, for who shows it.
    void write_warning(const std::string& lines);
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
    /// Reports that a deck holds the current row's file.
    void report_loaded(const Deck& deck) const;
    /// An information box under the station's title.
    void inform(const std::string& text);
    /// Writes a setting of section "Config". A store that refuses it says so: the running station has the new value
    /// all the same, the next start won't.
    void remember(std::string_view key, std::string_view value);
};

inline constexpr std::string_view waiting_title = " - En attente";
inline constexpr std::string_view empty_title = "(Aucun fichier en cours)";

/// What a box says of a failure: the sentence, and on a line of its own what it concerns.
[[nodiscard]] std::string lines_of(const Failure& failure);

} // namespace sonarelle
