#pragma once

#include <functional>

#include "playlist/list_save_dialog.h"
#include "playout/auto_chain.h"
#include "playout/deck_transport.h"
#include "playout/desk.h"
#include "playout/run_control.h"

namespace sonarelle {

/// The transport of the list window: what starts a run and what stops it all.
class ListRun {
public:
    ListRun(Desk& desk, AutoChain& chain, DeckTransport& transport, RunControl& run, ListSaveDialog& save_dialog,
            ListDocument& document);

    /// Called before the list starts, which it may grow.
    std::function<void()> draw_first_row;

    /// Plays the list from the selected row, alone. One that can't be played leaves what is on the air.
    void play_list();
    /// The play image, pressed by its key: it cuts nothing that sounds on the first deck.
    void start_by_key();
    /// The same of a list that was on the air before: its rows stay as they are.
    void take_up();
    /// Puts the selected row on the first deck, unless that one sounds, and starts nothing.
    void load_selected_row();
    /// Presses the stop buttons of all decks.
    void stop_decks();
    /// Shows the row that plays.
    void show_playing_row();

    /// Whether a file opens and has something to play.
    [[nodiscard]] bool can_be_played(const std::string& path) const;
    /// The same of a row, which may begin where its file ends.
    [[nodiscard]] bool can_be_heard(int row) const;

private:
    void start_selected_row();
    void put_on_first_deck(Integer number);
    /// Whether a row can be taken by its number, or the operator was told that it can't.
    [[nodiscard]] bool is_playable_number(int row) const;
    [[nodiscard]] bool first_deck_sounds() const;
    void tell_missing_file(const std::string& path);
    void start_row(Integer number, const DestinationRecord& row);
    void stop_other_decks();
    void select_a_row();
    void choose_a_reading_mode();

    Desk& desk_;
    AutoChain& chain_;
    DeckTransport& transport_;
    RunControl& run_;
    ListSaveDialog& save_dialog_;
    ListDocument& document_;
};

} // namespace sonarelle
