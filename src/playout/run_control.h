#pragma once

#include <functional>

#include "playlist/list_document.h"
#include "playout/deck_start.h"
#include "playout/desk.h"
#include "playout/journal.h"

namespace sonarelle {

/// Starts and stops a run of the current list, and checks that a row still names a file.
class RunControl {
public:
    RunControl(Desk& desk, DeckStart& start, Journal& journal, ListDocument& document)
        : desk_{desk}, start_{start}, journal_{journal}, document_{document} {}

    /// From the list window: chooses the list chain, makes deck 1 the main one and starts it.
    void lect_liste();
    /// Starts deck 1 with the file that is loaded on it.
    void Start_liste();

    /// Warns that a list can't start with this file.
    void report_failed_start(const std::string& path);

    /// The hard stop of the chain by a fault: none of its timers and walks goes on. The deck that plays does, and an
    /// overlap that has begun comes to its end.
    void stoppe_liste(const std::string& reason);
    /// Ends the chain's walks over the rows.
    std::function<void()> end_walks;
    /// The soft stop, before a deck is loaded by hand from a quick load list.
    void stoppe_list();

    /// Looks for the file of `chemin_fichier`, which is emptied when it isn't there; a row whose folder is there and
    /// doesn't hold it is removed.
    /// @throws Failure when its drive or folder doesn't answer: 68, 76 and others.
    void detecte_fichier_liste();

    /// Removes the current row, whose file can't be played, saves the list and says so.
    void remove_row();

    void Mettre_en_pause(const std::function<void(Deck&)>& press_pause);

private:
    [[nodiscard]] bool is_overlap_under_way();
    void start_first_deck();
    void write_start(const std::string& path);
    void report_missing(const std::string& heading, const std::string& last_line);

    Desk& desk_;
    DeckStart& start_;
    Journal& journal_;
    ListDocument& document_;
};

} // namespace sonarelle
