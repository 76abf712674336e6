#pragma once

#include <array>

#include "platform/row_table.h"
#include "state/chain_state.h"
#include "state/list_state.h"

namespace sonarelle {

/// The one way in which rows come into the list, leave it and change places: whatever names a row by its number goes
/// with it, so that the run goes on where it stood. What random order had drawn and isn't there any more is drawn anew.
/// Window thread.
/// @throws Failure 9 for a row or place that doesn't exist.
class RowEdits {
public:
    RowEdits(ListState& list, ChainState& chain, RowTable& rows)
        : list_{list},
          chain_{chain},
          rows_{rows} {}

    /// Rows from `number` on move down.
    void insert(int number, RowTable::Row row);
    /// While a deck is the main one, the chain goes on with the row that takes the place of a removed one that it was
    /// on.
    void remove(int number);
    /// Brings a row before the one at `target`; one that moves down therefore lands at `target` - 1.
    void move(int number, int target);
    /// All rows go, and the chain begins with the first one that comes.
    void clear();
    /// By their paths; the run goes on behind the row that it is on, at its new place.
    void sort(SortOrder order);

private:
    /// All that names a row by its number.
    [[nodiscard]] std::array<Integer*, 4> named_places() const;
    void give_up_prepared_row() const;
    /// `place_of` gives a row's new number from its old one, and for a row that has left the one that took its place.
    template <typename PlaceOf>
    void follow(int next_before, const PlaceOf& place_of);
    /// The row that the chain takes next in the list's order, 0 while a drawn one waits.
    [[nodiscard]] int next_in_order() const;

    ListState& list_;
    ChainState& chain_;
    RowTable& rows_;
};

} // namespace sonarelle
