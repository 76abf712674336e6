#include "playout/row_cursor.h"

#include <algorithm>
#include <cstdint>

#include "platform/calendar_text.h"
#include "platform/disk.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "playlist/file_existence.h"

namespace sonarelle {

std::string_view passed_over::because_of(LoadResult result) {
    return result == LoadResult::disk_did_not_answer ? silent_disk
           : result == LoadResult::too_short         ? too_short
                                                     : unplayable;
}

void RowCursor::take_next_row() {
    if (desk_.list.index_en_cours == INT16_MAX)
        desk_.list.index_en_cours = 0; // rows behind it have no number that the chain knows
    desk_.list.index_en_cours += 1;
    take_current_row();
}

// Behind the last row the list begins anew; it may have become shorter meanwhile. Before the first row stands a list
// whose first row was loaded in list order.
void RowCursor::take_current_row() {
    if (desk_.list.index_en_cours < 1 || desk_.list.index_en_cours.value() > desk_.row_count())
        desk_.list.index_en_cours = 1;
    desk_.list.chemin_fichier = desk_.list_window.rows.text(desk_.list.index_en_cours.value());
}

bool RowCursor::take_drawn_row(DrawPlace place) {
    const std::optional<int> row = draws_.draw(place);
    if (!row)
        return false;
    desk_.list.index_en_cours = *row;
    take_current_row();
    return true;
}

void RowCursor::draw_any_row() {
    const int rows = std::min<int>(desk_.row_count(), INT16_MAX);
    desk_.list.index_en_cours = draw_any(desk_.platform.random, {1, rows});
    take_current_row();
    desk_.report({.kind = OnAirEvent::Kind::drawn,
                  .row = desk_.list.index_en_cours.value(),
                  .path = desk_.list.chemin_fichier,
                  .among = rows});
}

RowCursor::Place RowCursor::place() const {
    return {desk_.list.index_en_cours, desk_.list.chemin_fichier, desk_.chain.choix_prepare,
            desk_.chain.chargement_fait, desk_.row_count()};
}

void RowCursor::go_back_to(const Place& place) {
    if (desk_.row_count() != place.rows) {
        desk_.chain.choix_prepare = false;
        return;
    }
    desk_.list.index_en_cours = place.row;
    desk_.list.chemin_fichier = place.path;
    desk_.chain.choix_prepare = place.choix_prepare;
    desk_.chain.chargement_fait = place.chargement_fait;
}

RowCursor::Look RowCursor::look() {
    try {
        desk_.list.chemin_fichier = detecte_fichier_liste(desk_.list.chemin_fichier);
    } catch (const Failure& failure) {
        const bool silent = failure.number == FailureNumber::device_fault;
        pass_over(silent ? passed_over::silent_disk : passed_over::no_folder);
        return silent ? Look::silent_disk : Look::no_answer;
    }
    return desk_.list.chemin_fichier.empty() ? Look::gone : Look::found;
}

std::string RowCursor::detecte_fichier_liste(const std::string& chemin_fichier) {
    if (is_network_path(chemin_fichier))
        return chemin_fichier;
    Disk& disk = desk_.platform.disk;
    enter_folder_of(disk, chemin_fichier);
    if (disk.Dir(chemin_fichier).empty()) {
        enter_folder_of(disk, chemin_fichier); // it may have gone between the two looks
        remove_row();
        return {};
    }
    if (is_listed(disk, chemin_fichier))
        return join_path(folder_of_path(chemin_fichier), name_of_path(chemin_fichier));
    report_missing("Recherche de fichier", "Ce fichier est NON TROUVE !");
    return {};
}

DestinationRecord RowCursor::read_row() {
    DestinationRecord record = reading_.read_for_the_air(desk_.list.index_en_cours);
    record.dest_chemin = desk_.list.chemin_fichier;
    return record;
}

LoadResult RowCursor::load_on(Deck& deck, const DestinationRecord& row) {
    const std::optional<double> wanted = is_loaded(deck) ? deck.start_by_hand : std::nullopt;
    const LoadResult result = loading_.load_from_list(deck, row);
    deck.start_by_hand = wanted;
    return result;
}

bool RowCursor::is_loaded(const Deck& deck) const {
    return desk_.chain.chargement_fait.is_true() && deck.path == desk_.list.chemin_fichier;
}

bool RowCursor::is_folder_there(const std::string& path) const {
    bool there = false;
    ErrorIndicator{}.skip([&] { there = desk_.platform.disk.facts(folder_of_path(path)).is_folder; });
    return there;
}

bool RowCursor::is_missing(const std::string& path) const {
    std::string found = path;
    ErrorIndicator{}.skip([&] { found = desk_.platform.disk.Dir(path); });
    return found.empty() && is_folder_there(path);
}

void RowCursor::pass_over(std::string_view why) {
    note_passed_over(why);
    desk_.chain.chargement_fait = false;
    desk_.chain.choix_prepare = false;
}

void RowCursor::note_passed_over(std::string_view why) {
    const std::string& path = desk_.list.chemin_fichier;
    if (passed_over_.insert(path).second)
        journal_.note(date_and_time(desk_.platform) + " fichier : " + path + std::string{why});
}

void RowCursor::remove_row() {
    const int row = desk_.list.index_en_cours.value();
    document_.edits.remove(row);
    if (desk_.list.chemin_fichier == desk_.chain.chemin_ajoute)
        desk_.chain.demande_ajout = true; // another one is to come in its stead
    document_.save_by_itself();
    desk_.report({.kind = OnAirEvent::Kind::removed, .row = row, .path = desk_.list.chemin_fichier});
    report_missing("Recherche de fichier valide ",
                   "Ce fichier est non trouvé ou non valide !\nIl a été supprimé de la liste.");
}

void RowCursor::report_missing(const std::string& heading, const std::string& last_line) {
    desk_.notices.warn_of_file(heading, desk_.list.chemin_fichier, last_line);
}

void RowCursor::select_row() {
    const int row = desk_.list.index_en_cours.value();
    desk_.list_window.rows.ensure_visible(row);
    desk_.list_window.rows.select(row);
}

} // namespace sonarelle
