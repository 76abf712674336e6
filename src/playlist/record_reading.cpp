#include "playlist/record_reading.h"

#include <utility>

#include "platform/text.h"
#include "playlist/list_file.h"
#include "playlist/list_rows.h"

namespace sonarelle {

RecordReading::RecordReading(const Platform& platform, ListState& list, const RowTable& rows,
                             std::function<void()> warn_of_null_volume)
    : platform_{platform},
      list_{list},
      rows_{rows},
      warn_of_null_volume_{std::move(warn_of_null_volume)} {}

DestinationRecord RecordReading::lire_enreg_destinataire(Integer index_destinataire, DestinationRecord before) {
    return read(index_destinataire, &RecordReading::record_of_file, std::move(before));
}

DestinationRecord RecordReading::read_for_the_air(Integer row) {
    return read(row, &RecordReading::record_of_row, {});
}

DestinationRecord RecordReading::read(Integer number, RecordOf record_of, DestinationRecord before) {
    DestinationRecord record = std::move(before);
    if (list_.fichier_liste.empty())
        return record;
    ErrorIndicator{}.skip([&] {
        record = destination_of((this->*record_of)(number == 0 ? 1 : number.value()));
        if (record.dest_volume_pourcent == 0)
            check_null_volume();
    });
    return record;
}

std::optional<DestinationRecord> RecordReading::read_record(int number) const {
    std::optional<DestinationRecord> record;
    if (!list_.fichier_liste.empty())
        ErrorIndicator{}.skip([&] { record = destination_of(record_of_file(number)); });
    return record;
}

enreg_liste RecordReading::record_of_file(int number) const {
    enreg_liste record;
    ListReader{platform_.disk, list_path(platform_, list_.fichier_liste)}.read(number, record);
    return record;
}

enreg_liste RecordReading::record_of_row(int number) const {
    if (number > rows_.count())
        return record_of_file(number);
    const RowTable::Row& shown = rows_.row(number);
    enreg_liste record;
    const bool is_read = ErrorIndicator{}.skip([&] { record = record_of_file(number); });
    const bool is_shown = is_read && record.trimmed_chemin() == shown[list_column::path];
    return is_shown ? record : record_of_cells(shown, platform_.decimal_mark);
}

void RecordReading::check_null_volume() {
    if (list_.volume_nul_signale.is_true())
        return;
    list_.volume_nul_signale = true;
    warn_of_null_volume_();
}

DraggedRecord RecordReading::lire_enreg_dragdrop(Integer index_glisse) const {
    DraggedRecord dragged;
    if (!list_.fichier_liste.empty())
        ErrorIndicator{}.skip([&] { dragged = read_dragged(index_glisse.value()); });
    return dragged;
}

DraggedRecord RecordReading::read_dragged(int number) const {
    const enreg_liste record = record_of_file(number);
    const std::string start = Format(record.debut_lecture(), start_pattern, platform_.decimal_mark);
    DraggedRecord dragged;
    dragged.drop_chemin = record.trimmed_chemin();
    dragged.drop_fin = lower_case(record.trimmed_fin_lecture());
    dragged.drop_genre = record.trimmed_genre();
    dragged.drop_duree = record.duree_piste();
    dragged.drop_debut = to_double(start, platform_.decimal_mark);
    dragged.drop_volume = record.volume();
    return dragged;
}

} // namespace sonarelle
