#include "playlist/record_reading.h"

#include <cstdint>
#include <utility>

#include "platform/paths.h"
#include "platform/text.h"
#include "playlist/list_file.h"
#include "playlist/list_rows.h"

namespace sonarelle {

RecordReading::RecordReading(const Platform& platform, ListState& list, DestinationRecord& destination,
                             DraggedRecord& dragged, const RowTable& rows, std::function<void()> warn_of_null_volume)
    : platform_{platform},
      list_{list},
      destination_{destination},
      dragged_{dragged},
      rows_{rows},
      warn_of_null_volume_{std::move(warn_of_null_volume)} {}

void RecordReading::lire_enreg_destinataire() {
    fill_destination(&RecordReading::record_of_file);
}

void RecordReading::read_for_the_air() {
    fill_destination(&RecordReading::record_of_row);
}

void RecordReading::fill_destination(enreg_liste (RecordReading::*record_of)(int number) const) {
    if (list_.fichier_liste.empty())
        return;
    if (list_.index_destinataire == 0)
        list_.index_destinataire = 1;
    ErrorIndicator{}.skip([&] {
        take_texts((this->*record_of)(list_.index_destinataire.value()));
        if (destination_.dest_volume == 0)
            check_null_volume();
        take_volume();
    });
}

bool RecordReading::read_record(int number) {
    if (number <= INT16_MAX)
        list_.index_destinataire = number;
    destination_ = {};
    return !list_.fichier_liste.empty() && ErrorIndicator{}.skip([&] { take(record_of_file(number)); });
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

void RecordReading::take(const enreg_liste& record) {
    take_texts(record);
    take_volume();
}

void RecordReading::take_texts(const enreg_liste& record) {
    destination_.dest_chemin = record.trimmed_chemin();
    destination_.dest_debut = record.debut_lecture();
    destination_.dest_fin = lower_case(record.trimmed_fin_lecture());
    destination_.dest_genre = record.trimmed_genre();
    destination_.dest_volume = record.volume();
    destination_.dest_duree = record.duree_piste();
}

void RecordReading::take_volume() {
    destination_.dest_volume_pourcent = destination_.dest_volume;
    if (destination_.dest_volume < 101)
        destination_.convertir_valeur_son();
    destination_.dest_nom_fichier = name_of_path(destination_.dest_chemin);
}

void RecordReading::check_null_volume() {
    if (list_.volume_nul_signale.is_true())
        return;
    list_.volume_nul_signale = true;
    warn_of_null_volume_();
}

void RecordReading::lire_enreg_dragdrop() {
    if (list_.fichier_liste.empty())
        return;
    if (list_.index_destinataire == 0)
        list_.index_destinataire = 1;
    ErrorIndicator{}.skip([this] { read_dragged(); });
}

void RecordReading::read_dragged() {
    const enreg_liste record = record_of_file(list_.index_glisse.value());
    dragged_.drop_chemin = record.trimmed_chemin();
    const std::string start = Format(record.debut_lecture(), start_pattern, platform_.decimal_mark);
    dragged_.drop_debut = to_double(start, platform_.decimal_mark);
    dragged_.drop_fin = lower_case(record.trimmed_fin_lecture());
    dragged_.drop_genre = record.trimmed_genre();
    dragged_.drop_volume = record.volume();
    dragged_.drop_duree = record.duree_piste();
}

} // namespace sonarelle
