#pragma once

#include <array>
#include <string>
#include <vector>

#include "playlist/list_at_work.h"
#include "playlist/list_update.h"

namespace sonarelle {

/// Rows that come from outside the list: files of another program. They go where the insertion mode says.
/// Window thread.
class RowArrival {
public:
    RowArrival(const Platform& platform, ListState& state, ChainState& chain, ListAtWork& list, ListDocument& document,
               ListUpdate& update);

    void inser_avant() { choose(1); }
    void inser_apres() { choose(2); }
    void inser_fin() { choose(3); }

    /// Files of another program were dropped on the rows; they are measured at once.
    void drop_files(const std::vector<std::string>& paths);

private:
    void choose(int mode);
    [[nodiscard]] int next_place() const;
    void insert_files(const std::vector<std::string>& paths);
    [[nodiscard]] RowTable::Row row_of_file(const std::string& path) const;

    const Platform& platform_;
    ListState& state_;
    ChainState& chain_;
    ListAtWork& list_;
    ListDocument& document_;
    ListUpdate& update_;
};

} // namespace sonarelle
