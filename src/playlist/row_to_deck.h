#pragma once

#include <functional>

#include "platform/platform.h"
#include "playlist/liste_son.h"
#include "playlist/record_reading.h"
#include "state/chain_state.h"
#include "state/list_state.h"

namespace sonarelle {

/// Sends the selected row to a deck.
class RowToDeck {
public:
    /// The doors of deck 1, 2 or 3.
    struct DeckDoors {
        std::function<bool(int deck)> may_be_loaded;                      ///< May ask the operator.
        std::function<void(int deck, const DestinationRecord& row)> load; ///< Loads it and adjusts the deck's buttons.
    };
    RowToDeck(const Platform& platform, ListState& list, ChainState& chain, Liste_son& window, RecordReading& reading,
              DeckDoors decks);

    void Charg1_son() { send(1); }
    void charg2_son() { send(2); }
    void Charg3_son() { send(3); }

    /// The context menu opens: the main deck can't be loaded, the clipboard's text can be pasted.
    void Load_Pl();

private:
    void send(int deck);

    const Platform& platform_;
    ListState& list_;
    ChainState& chain_;
    Liste_son& window_;
    RecordReading& reading_;
    DeckDoors decks_;
    DestinationRecord sent_; // last
};

} // namespace sonarelle
