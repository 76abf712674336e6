#include "playlist/row_reading.h"

#include <algorithm>
#include <optional>

#include "platform/clock.h"
#include "playlist/list_rows.h"

namespace sonarelle {

DestinationRecord RowReading::read(int row) {
    const RowTable::Row& shown = window_.rows.row(row);
    const std::optional<DestinationRecord> of_file = reading_.read_record(row);
    const bool is_shown = of_file && of_file->dest_chemin == shown[list_column::path];
    DestinationRecord record = is_shown ? *of_file : destination_of(record_of_cells(shown, platform_.decimal_mark));
    null_volume_ |= record.dest_volume_pourcent == 0;
    return record;
}

void RowReading::warn_of_null_volume() {
    if (null_volume_)
        reading_.check_null_volume();
    null_volume_ = false;
}

int RowReading::follow(int next_row, const std::function<void()>& words) {
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

int RowReading::place_of(const RowTable::Row& wanted, int old_place) const {
    const RowTable& rows = window_.rows;
    for (int row = std::min(old_place, rows.count()); row >= 1; --row)
        if (rows.row(row) == wanted)
            return row;
    for (int row = old_place + 1; row <= rows.count(); ++row)
        if (rows.row(row) == wanted)
            return row;
    return old_place;
}

} // namespace sonarelle
