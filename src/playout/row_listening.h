#pragma once

#include <string>

#include "playout/desk.h"
#include "playout/list_run.h"
#include "playout/mix.h"
#include "playout/row_cursor.h"

namespace sonarelle {

/// Plays the selected row once over the main deck, by a special mix of the deck that the chain doesn't need, and the
/// list goes on as if nothing had been.
class RowListening {
public:
    RowListening(Desk& desk, RowCursor& cursor, DeckLoading& loading, MixEngine& mix, ListRun& run)
        : desk_{desk},
          cursor_{cursor},
          loading_{loading},
          mix_{mix},
          run_{run} {}

    /// With no deck on the air the list starts with the row. Refused, in words, by hand, while the free deck is still
    /// heard or waits for its turn, and while another special mix runs.
    void A_ecoute();

private:
    /// The deck that the chain doesn't need; there is a main one.
    [[nodiscard]] Deck& free_deck() const;
    [[nodiscard]] std::string why_not(int row) const;
    void listen_to(const DestinationRecord& row, Deck& deck);

    Desk& desk_;
    RowCursor& cursor_;
    DeckLoading& loading_;
    MixEngine& mix_;
    ListRun& run_;
};

} // namespace sonarelle
