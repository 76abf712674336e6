#include "playlist/list_rows.h"

#include "platform/disk.h"

namespace sonarelle {

RowTable::Row row_of(const enreg_liste& record, DecimalMark mark) {
    return {record.trimmed_chemin(),
            Format(record.debut_lecture(), start_pattern, mark),
            Format(record.fin_lecture(), start_pattern, mark),
            record.trimmed_genre(),
            std::to_string(record.volume()),
            record.trimmed_duree_piste()};
}

RowTable::Row row_of(const enreg_rfm& record, DecimalMark mark) {
    return {record.trimmed_chemin(),
            "0.10",
            Format(record.fin_lecture(), start_pattern, mark),
            record.trimmed_genre(),
            std::to_string(record.volume()),
            record.trimmed_duree_piste()};
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
