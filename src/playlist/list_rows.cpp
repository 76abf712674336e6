#include "playlist/list_rows.h"

#include "platform/disk.h"
#include "platform/failure.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

/// A field of spaces alone is an empty cell, which the next save fills.
std::string end_cell(const std::string& field, DecimalMark mark) {
    return trim(field).empty() ? "" : Format(field, start_pattern, mark);
}

} // namespace

RowTable::Row row_of(const enreg_liste& record, DecimalMark mark) {
    return {record.trimmed_chemin(),
            Format(record.debut_lecture(), start_pattern, mark),
            end_cell(record.fin_lecture(), mark),
            record.trimmed_genre(),
            std::to_string(record.volume()),
            record.trimmed_duree_piste()};
}

RowTable::Row row_of(const enreg_rfm& record, DecimalMark mark) {
    return {record.trimmed_chemin(), std::string{default_start},      end_cell(record.fin_lecture(), mark),
            record.trimmed_genre(),  std::to_string(record.volume()), record.trimmed_duree_piste()};
}

RowTable::Row row_of(const DestinationRecord& record, DecimalMark mark) {
    return {record.dest_chemin, Format(record.dest_debut, start_pattern, mark), end_cell(record.dest_fin, mark),
            record.dest_genre,  text_of(record.dest_volume_pourcent),           std::string{trim(record.dest_duree)}};
}

enreg_liste record_of_cells(const RowTable::Row& row, DecimalMark mark) {
    enreg_liste record;
    ErrorIndicator cells;
    fill_record(record, row, mark, [&cells](auto&& statement) { cells.skip(statement); });
    return record;
}

void enter_program_folder(const Platform& platform) {
    platform.disk.ChDrive(platform.program_folder);
    platform.disk.ChDir(platform.program_folder);
}

std::string list_path(const Platform& platform, std::string_view name) {
    enter_program_folder(platform);
    return platform.disk.absolute(name);
}

} // namespace sonarelle
