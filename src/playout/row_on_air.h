#pragma once

#include <optional>

#include "platform/platform.h"
#include "playlist/enreg_liste.h"
#include "playout/deck.h"
#include "state/list_state.h"

namespace sonarelle {

/// A row of the list with its record.
struct RowOnAir {
    int number = 0;
    enreg_liste record;
};

/// The row that plays, where it is its file that the deck holds. A file that the operator put there himself has no row,
/// and what stands in the list belongs to another one.
/// @throws Failure when the list can't be read.
[[nodiscard]] std::optional<RowOnAir> row_on_air(const Platform& platform, const ListState& list, const Deck& deck);

} // namespace sonarelle
