#pragma once

#include <functional>
#include <string>

#include "platform/dialogs.h"
#include "platform/platform.h"
#include "playlist/fsauve.h"
#include "playlist/list_document.h"
#include "playlist/list_guard.h"
#include "playlist/liste_son.h"
#include "playlist/record_reading.h"
#include "playlist/working_records.h"
#include "state/list_state.h"

namespace sonarelle {

/// The list as the actions of its menu work on it, row by row, while the station goes on: whether an action may begin,
/// the rows' records, and what each change of a row brings with it. Window thread.
class ListAtWork {
public:
    ListAtWork(const Platform& platform, ListState& state, Liste_son& window, fsauve& progress, RecordReading& reading,
               ListDocument& document);

    /// False while another action is under way, without a word, or when the list isn't in the form that it needs.
    [[nodiscard]] bool allows(ListAction action) const { return guard_.allows(action); }
    /// Begins an action, which lasts as long as what is returned.
    [[nodiscard]] ListWork begin() { return {guard_, window_}; }

    [[nodiscard]] Liste_son& window() { return window_; }
    [[nodiscard]] RowTable& rows() { return window_.rows; }
    [[nodiscard]] fsauve& progress() { return progress_; }

    /// The record of a row. The file is the list; where it doesn't have this row, because a save has failed or was not
    /// wanted, the row itself counts, so that no row is ever taken for another.
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

    void remove(int row) { document_.edits.remove(row); }
    void save() { document_.sauve_tout(); }
    /// Saves after a walk, on which the operator may have emptied the list.
    void save_what_is_left();
    /// Puts an edited record in the place of a row's in the file.
    /// @throws Failure 63 when the file has another track there.
    void write_record(int row, const enreg_liste& record);
    /// Reads the list anew with this record as the row's, and saves it.
    void show_record(int row, const enreg_liste& record);

    /// Tells the operator in a box.
    void tell(const std::string& text, Icon icon);

private:
    const Platform& platform_;
    ListState& state_;
    Liste_son& window_;
    fsauve& progress_;
    RecordReading& reading_;
    ListDocument& document_;
    ListGuard guard_;
    bool null_volume_ = false; // in a row that was read since the last warning
};

} // namespace sonarelle
