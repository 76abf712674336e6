#pragma once

#include <functional>

#include "platform/platform.h"
#include "playlist/liste_son.h"
#include "playlist/record_reading.h"
#include "playlist/working_records.h"

namespace sonarelle {

/// Reads the rows that an action of the list works on, one after the other.
class RowReading {
public:
    RowReading(const Platform& platform, const Liste_son& window, RecordReading& reading)
        : platform_{platform},
          window_{window},
          reading_{reading} {}

    /// The record of a row. The file is the list; where it doesn't have this row, because
    /// a save has failed or was not wanted, the row itself counts, so that no row is ever taken for another.
    /// @throws Failure 9 for a row that doesn't exist.
    [[nodiscard]] DestinationRecord read(int row);
    /// Warns of a volume 0 in a row that was read. The station goes on while the warning is shown, so row numbers taken
    /// before it no longer hold.
    void warn_of_null_volume();

    /// Lets the station go on between two steps of a walk, and with it the null volume warning and other `words` to the
    /// operator. Gives the walk's next row by its number of then: rows may come and go meanwhile, and one that went
    /// leaves its number to the next.
    [[nodiscard]] int follow(int next_row, const std::function<void()>& words = {});
    /// Where a row went: in front of its old place, behind it, or away, which leaves the place to the next one.
    [[nodiscard]] int place_of(const RowTable::Row& wanted, int old_place) const;

private:
    const Platform& platform_;
    const Liste_son& window_;
    RecordReading& reading_;
    bool null_volume_ = false;
};

} // namespace sonarelle
