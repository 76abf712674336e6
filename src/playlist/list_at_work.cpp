#include "playlist/list_at_work.h"

#include <algorithm>
#include <optional>

#include "platform/clock.h"
#include "platform/failure.h"
#include "playlist/list_file.h"
#include "playlist/list_rows.h"

namespace sonarelle {

ListAtWork::ListAtWork(const Platform& platform, ListState& state, Liste_son& window, fsauve& progress,
                       RecordReading& reading, ListDocument& document)
    : platform_{platform},
      state_{state},
      window_{window},
      progress_{progress},
      reading_{reading},
      document_{document},
      guard_{platform, state, window} {}

DestinationRecord ListAtWork::read(int row) {
    const RowTable::Row& shown = window_.rows.row(row);
    const std::optional<DestinationRecord> of_file = reading_.read_record(row);
    const bool is_shown = of_file && of_file->dest_chemin == shown[list_column::path];
    DestinationRecord record = is_shown ? *of_file : destination_of(record_of_cells(shown, platform_.decimal_mark));
    null_volume_ |= record.dest_volume_pourcent == 0;
    return record;
}

void ListAtWork::warn_of_null_volume() {
    if (null_volume_)
        reading_.check_null_volume();
    null_volume_ = false;
}

int ListAtWork::follow(int next_row, const std::function<void()>& words) {
    const RowTable& rows = window_.rows;
    std::optional<RowTable::Row> next;
    if (next_row <= rows.count())
        next = rows.row(next_row);
    if (words)
        words();
    warn_of_null_volume();
    platform_.clock.yield();
    return next ? place_of(*next, next_row) : rows.count() + 1;
}

int ListAtWork::place_of(const RowTable::Row& wanted, int old_place) const {
    const RowTable& rows = window_.rows;
    for (int row = std::min(old_place, rows.count()); row >= 1; --row)
        if (rows.row(row) == wanted)
            return row;
    for (int row = old_place + 1; row <= rows.count(); ++row)
        if (rows.row(row) == wanted)
            return row;
    return old_place;
}

void ListAtWork::save_what_is_left() {
    if (window_.rows.count() > 0)
        save();
}

void ListAtWork::write_record(int row, const enreg_liste& record) {
    const std::string list = list_path(platform_, state_.fichier_liste);
    enreg_liste before;
    ListReader{platform_.disk, list}.read(row, before);
    if (before.trimmed_chemin() != record.trimmed_chemin())
        throw Failure{FailureNumber::wrong_record_number, record.trimmed_chemin()};
    document_.change_record(row, record);
}

// As after every change of a row, the default list then holds the whole table.
void ListAtWork::show_record(int row, const enreg_liste& record) {
    document_.charge_liste();
    window_.rows.replace(row, row_of(record, platform_.decimal_mark));
    save();
}

void ListAtWork::tell(const std::string& text, Icon icon) {
    show_box(platform_.dialogs, text, icon);
}

} // namespace sonarelle
