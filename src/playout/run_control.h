#pragma once

#include <functional>
#include <string>

#include "playout/deck_start.h"
#include "playout/desk.h"
#include "playout/journal.h"

namespace sonarelle {

/// Starts and stops a run of the current list.
class RunControl {
public:
    RunControl(Desk& desk, DeckStart& start, Journal& journal)
        : desk_{desk},
          start_{start},
          journal_{journal} {}

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
    /// Journals that the operator stops the list.
    void write_stop();
    /// The soft stop, before a deck is loaded by hand from a quick load list.
    void stoppe_list();

    /// Runs a step of the chain whose timer has this name. A failure stops the list, and the warning window says so.
    void under_trap(const std::string& timer, const std::function<void()>& step);

    void Mettre_en_pause(const std::function<void(Deck&)>& press_pause);

private:
    [[nodiscard]] bool is_overlap_under_way();
    void start_first_deck();
    void write_start(const std::string& path);

    Desk& desk_;
    DeckStart& start_;
    Journal& journal_;
};

} // namespace sonarelle
