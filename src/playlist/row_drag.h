#pragma once

#include <optional>

#include "playlist/list_at_work.h"

namespace sonarelle {

/// A row that the operator takes to another place in the list. Rows may come and go while it is on its way, so it is
/// known by its cells. Window thread.
class RowDrag {
public:
    RowDrag(ListState& state, ListAtWork& list, ListDocument& document)
        : state_{state},
          list_{list},
          document_{document} {}

    [[nodiscard]] bool is_under_way() const { return dragged_.has_value(); }
    /// The left button is down on a row, which may be the beginning of a drag.
    void press();
    /// False where the row can't be taken along.
    [[nodiscard]] bool take(int row);
    /// It lands before the row under the pointer. 0 is no row: nothing changes.
    void drop(int target);
    /// Whatever became of it.
    void end();

private:
    void land(int target);

    ListState& state_;
    ListAtWork& list_;
    ListDocument& document_;
    std::optional<RowTable::Row> dragged_;
    int from_ = 0;
};

} // namespace sonarelle
