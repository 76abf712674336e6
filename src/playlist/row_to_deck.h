#pragma once

#include <functional>

#include "platform/platform.h"
#include "playlist/list_state.h"
#include "playlist/liste_son.h"
#include "playlist/record_reading.h"
#include "playout/chain_state.h"

namespace sonarelle {

/// Sends the selected row to a deck.
class RowToDeck {
public:
    /// `load_deck` is the deck's door: it loads `chemin_fichier` on deck 1, 2 or 3 and adjusts its buttons.
    RowToDeck(const Platform& platform, ListState& list, const DestinationRecord& destination, ChainState& chain,
              Liste_son& window, RecordReading& reading, std::function<void(int deck)> load_deck);

    void Charg1_son() { send(1); }
    void charg2_son() { send(2); }
    void Charg3_son() { send(3); }

    /// The context menu opens: the main deck can't be loaded, the clipboard's text can be pasted.
    void Load_Pl();

private:
    void send(int deck);

    const Platform& platform_;
    ListState& list_;
    const DestinationRecord& destination_;
    ChainState& chain_;
    Liste_son& window_;
    RecordReading& reading_;
    std::function<void(int deck)> load_deck_;
};

} // namespace sonarelle
