#include "playout/list_rescue.h"

#include <algorithm>
#include <cstdint>

#include "platform/calendar_text.h"
#include "platform/clock.h"

namespace sonarelle {

namespace {

constexpr int rows_of_a_try = 400; // what a disk looks up without holding anything up

} // namespace

Frames ListRescue::patience() const {
    return seconds(std::max(0, desk_.settings.veille_antenne.value()));
}

void ListRescue::look(Frames silent_for) {
    if (silent_for == Frames{} || !is_needed()) {
        last_try_.reset();
        return;
    }
    const Frames now = desk_.platform.clock.now();
    if (silent_for < patience() || (last_try_ && now - *last_try_ < patience()))
        return;
    try_next_row(silent_for);
    last_try_ = now;
}

bool ListRescue::is_needed() const {
    const bool has_list = desk_.row_count() > 0 && !desk_.list.fichier_liste.empty();
    return patience() > Frames{} && has_list && !desk_.ring.sounds() &&
           (desk_.chain.air == AirState::failed || stands_still());
}

bool ListRescue::stands_still() const {
    const bool list_chain = desk_.chain.mode_enchainement.is_true() || desk_.window.list_chain_timer.enabled();
    return list_chain && desk_.ring.has_main_deck() && desk_.ring.main_deck().is_at_its_end() &&
           (!chain_.list_chain.looks_for_a_row() || has_another_file());
}

// A list of one file only waits for another one.
bool ListRescue::has_another_file() const {
    const RowTable& rows = desk_.list_window.rows;
    for (int row = 1; row <= rows.count(); ++row)
        if (rows.text(row) != desk_.chain.chemin_precedent)
            return true;
    return false;
}

void ListRescue::try_next_row(Frames silent_for) {
    const bool first = !last_try_;
    if (first) {
        const int row = desk_.list.index_en_cours.value();
        row_ = desk_.list.ligne_en_lecture == row ? row : row - 1; // where the chain stood is looked at first
    }
    const int row = next_row_that_opens();
    if (row != 0)
        start(row);
    if (row != 0 && desk_.chain.air == AirState::on)
        tell_success(row, silent_for);
    else if (first)
        tell_failure();
}

int ListRescue::next_row_that_opens() {
    const int rows = std::min<int>(desk_.row_count(), INT16_MAX); // those that the chain can number
    for (int looked_at = 0; looked_at < std::min(rows, rows_of_a_try); ++looked_at) {
        row_ = row_ >= 0 && row_ < rows ? row_ + 1 : 1;
        if (run_.can_be_heard(row_))
            return row_;
    }
    return 0;
}

// As the operator does: the row, a reading mode where the decks were chained, the play image.
void ListRescue::start(int row) {
    desk_.list_window.rows.select(row);
    if (!desk_.chain.mode_enchainement.is_true())
        desk_.list_window.full_length_mode.set_value(true);
    run_.take_up();
}

void ListRescue::tell_failure() {
    journal_.note(date_and_time(desk_.platform) + " Reprise de la liste impossible : aucun fichier ne s'ouvre");
}

void ListRescue::tell_success(int row, Frames silent_for) {
    const std::string& path = desk_.list.chemin_fichier;
    desk_.report({.kind = OnAirEvent::Kind::resumed, .row = row, .path = path, .span = silent_for});
    journal_.note(date_and_time(desk_.platform) + " Reprise de la liste : " + path + " (" + std::to_string(row) + ")");
}

} // namespace sonarelle
