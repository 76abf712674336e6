#pragma once

#include <functional>
#include <optional>
#include <string>

#include "playlist/list_at_work.h"

namespace sonarelle {

/// What the operator does to the selected row: copies it, cuts it, pastes behind it, removes it. A cut or copied row
/// is kept here, so that what the chain loads meanwhile doesn't take its place. Each edit that changes rows saves them.
/// Window thread.
class ListEditing {
public:
    struct Air {
        std::function<bool()> list_runs;
        std::function<void()> leave_list_modes; ///< The list is empty: the decks are played.
    };
    ListEditing(const Platform& platform, ListState& state, ListAtWork& list, ListDocument& document, Air air);

    void copier_();
    void Couper_();
    /// Behind the selected row, whatever the insertion mode, and at the full volume. Nothing while nothing was copied.
    void coller_();
    /// The one edit that isn't refused where modifications aren't to be saved: the row then leaves the table alone.
    void supprime();

private:
    void edit(const std::function<void()>& statements, const std::string& heading = {});
    void cut(int row);
    void paste(int row);
    void delete_row(int row);
    /// The row goes, and the one that takes its place is selected.
    void take_out(int row, bool saves);
    /// False where the operator keeps the row that plays. Rows may come and go while he is asked.
    [[nodiscard]] bool may_go(int& row);

    const Platform& platform_;
    ListState& state_;
    ListAtWork& list_;
    ListDocument& document_;
    Air air_;
    std::optional<DestinationRecord> copied_;
};

} // namespace sonarelle
