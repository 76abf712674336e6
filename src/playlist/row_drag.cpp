#include "playlist/row_drag.h"

#include <algorithm>

#include "platform/failure.h"
#include "playlist/list_rows.h"

namespace sonarelle {

void RowDrag::press() {
    state_.glisser_en_cours = state_.glisser_autorise.is_true();
}

bool RowDrag::take(int row) {
    if (!state_.glisser_en_cours.is_true() || row < 1 || row > list_.rows().count())
        return false;
    from_ = row;
    dragged_ = list_.rows().row(row);
    return !(*dragged_)[list_column::path].empty();
}

void RowDrag::drop(int target) {
    if (!dragged_ || target < 1 || !list_.allows(ListAction::drop_row))
        return;
    try {
        land(std::min(target, list_.rows().count()));
    } catch (const Failure& failure) {
        list_.tell(failure.what(), Icon::none);
    }
}

void RowDrag::land(int target) {
    const int from = list_.place_of(*dragged_, from_);
    if (from == target || from > list_.rows().count() || list_.rows().row(from) != *dragged_)
        return;
    document_.edits.move(from, target);
    document_.save_edit();
}

void RowDrag::end() {
    state_.glisser_en_cours = false;
    dragged_.reset();
}

} // namespace sonarelle
