#pragma once

#include "platform/row_table.h"
#include "state/chain_state.h"
#include "state/list_state.h"

namespace sonarelle {

/// The one way in which rows come into the list and leave it: whatever names a row by its number goes with it, so that
/// the run goes on where it stood. Window thread.
class RowEdits {
public:
    RowEdits(ListState& list, ChainState& chain, RowTable& rows)
        : list_{list},
          chain_{chain},
          rows_{rows} {}

    /// Rows from `number` on move down.
    /// @throws Failure 9 for a place that doesn't exist.
    void insert(int number, RowTable::Row row);
    /// While a deck is the main one, the chain goes on with the row that takes the place of a removed one that it was
    /// on. What random order had drawn and isn't there any more is drawn anew.
    /// @throws Failure 9 for a row that doesn't exist.
    void remove(int number);

private:
    /// The row to come, which may be loaded, is another one now.
    void give_up_loaded_row() const { chain_.chargement_fait = false; }
    [[nodiscard]] bool is_next_in_order(int number) const {
        return !chain_.choix_prepare.is_true() && number == list_.index_en_cours.value() + 1;
    }

    ListState& list_;
    ChainState& chain_;
    RowTable& rows_;
};

} // namespace sonarelle
