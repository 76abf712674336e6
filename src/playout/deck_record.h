#pragma once

#include "platform/platform.h"
#include "playlist/working_records.h"
#include "state/chain_state.h"
#include "state/list_state.h"

namespace sonarelle {

/// Reads one record for a deck that is loaded by hand. Its end point has whole seconds, which the decks' counters show;
/// the volume stays in percent.
class DeckRecord {
public:
    DeckRecord(const Platform& platform, const ChainState& chain, ListState& list, DestinationRecord& destination)
        : platform_{platform},
          chain_{chain},
          list_{list},
          destination_{destination} {}

    /// Record `index_destinataire` of `fichier_courant` into the destination record; an index of 0 becomes 1. A failure
    /// (an end point that is no 16-bit number among them) leaves the record partly filled, without a word.
    void lire();

private:
    void read();

    const Platform& platform_;
    const ChainState& chain_;
    ListState& list_;
    DestinationRecord& destination_;
};

} // namespace sonarelle
