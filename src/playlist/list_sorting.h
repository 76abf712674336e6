#pragma once

#include "playlist/list_at_work.h"

namespace sonarelle {

/// Sorts the list by its paths, up and down by turns. Window thread.
class ListSorting {
public:
    ListSorting(const Platform& platform, ListAtWork& list, ListDocument& document)
        : platform_{platform},
          list_{list},
          document_{document} {}

    /// A heading was pressed, whichever it is: asks, sorts once, and saves.
    void press_heading();

private:
    [[nodiscard]] bool may_sort() const;

    const Platform& platform_;
    ListAtWork& list_;
    ListDocument& document_;
    SortOrder next_order_ = SortOrder::ascending;
};

} // namespace sonarelle
