#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/lengths_ahead.h"
#include "platform/platform.h"
#include "playlist/file_measure.h"
#include "playlist/list_at_work.h"
#include "playlist/list_save_dialog.h"
#include "playlist/list_verification.h"
#include "state/chain_state.h"
#include "state/list_state.h"

namespace sonarelle {

/// Measures the files of the list anew. A row whose file can't be measured keeps what it has; one that was only just
/// dropped goes.
///
/// The files of a whole list are measured ahead, by all processors; the window's words and the rows come one by one, in
/// the list's order, and the station goes on between them.
class ListUpdate {
public:
    ListUpdate(const Platform& platform, ListState& state, ChainState& chain, ListAtWork& list,
               ListSaveDialog& save_dialog, ListVerification& verification);

    /// The selected row, or the row that was just dropped.
    void a_mettre_a_jour();
    void a_mettre_a_jour_liste();
    /// The rows that were just dropped: these alone, and without a test.
    void update_dropped_rows(int first, int count);

private:
    /// A row that the walk has done with, or comes back to when the list changed meanwhile.
    struct Step {
        bool done = false;
        int next = 0;
    };

    [[nodiscard]] std::optional<std::string> update_one_row();
    void update_dropped_row();
    [[nodiscard]] std::optional<std::string> update_selected_row();
    void give_up(const std::string& description);

    [[nodiscard]] ListVerification::Outcome test_before(bool after_drop);
    void update_rows(int first, int count, bool moves_chain);
    void walk_rows(int first, int count, bool moves_chain);
    [[nodiscard]] Step update_row(int row, LengthsAhead& lengths);
    void offer_result(const std::string& short_name, int removed);
    [[nodiscard]] std::optional<MeasuredLength> wait_for(LengthsAhead& lengths, const std::string& path);
    void offer_saving(const std::string& short_name, int removed);
    void make_current(int row);
    [[nodiscard]] RowTable::Row measured_row(const DestinationRecord& record, const TrackFacts& facts) const;

    const Platform& platform_;
    ListState& state_;
    ChainState& chain_;
    ListAtWork& list_;
    ListSaveDialog& save_dialog_;
    FileMeasure measure_{platform_};
    ListVerification& verification_;
};

} // namespace sonarelle
