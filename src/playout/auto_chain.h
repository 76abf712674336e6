#pragma once

#include "playout/deck_chain.h"
#include "playout/list_chain.h"
#include "playout/load_ahead.h"
#include "playout/overlap.h"
#include "playout/row_cursor.h"

namespace sonarelle {

/// Keeps sound on the air without a hand on the desk. Its parts go by a timer each: the load of the next row, the chain
/// over decks, the overlap of two tracks, and the chain of the list.
class AutoChain {
public:
    AutoChain(Desk& desk, RowCursor& row_cursor, DeckStart& start, MixEngine& mix, Journal& journal, RunControl& run)
        : cursor{row_cursor},
          load_ahead{desk, cursor, run, journal},
          deck_chain{desk, start, mix, run},
          overlap{desk, mix},
          list_chain{desk, cursor, load_ahead, start, overlap, run},
          desk_{desk},
          mix_{mix},
          run_{run} {}

    /// The tick of the list's chain: a special mix holds it until it has ended.
    void follow_list();

    /// A track that wasn't chosen by the chain overlaps the old one from now on.
    void begin_overlap();
    /// Ends the walks that look for a row.
    void cancel_walks();

    RowCursor& cursor;
    LoadAhead load_ahead;
    DeckChain deck_chain;
    Overlap overlap;
    ListChain list_chain;

private:
    Desk& desk_;
    MixEngine& mix_;
    RunControl& run_;
};

} // namespace sonarelle
