#pragma once

#include <functional>
#include <string>

#include "platform/platform.h"
#include "playlist/list_state.h"
#include "playlist/working_records.h"

namespace sonarelle {

/// Reads single records of the current list into the working records. A record that can't be read leaves the working
/// record as far as it was filled, without a word: the chain goes on and decides by what it finds there.
class RecordReading {
public:
    /// `warn_of_null_volume` is called once, for the first volume 0 since start-up.
    RecordReading(const Platform& platform, ListState& list, DestinationRecord& destination, DraggedRecord& dragged,
                  std::function<void()> warn_of_null_volume);

    /// Record `index_destinataire` of `fichier_liste` into the destination record, its volume as an attenuation.
    /// Nothing without a list; an index of 0 becomes 1.
    void lire_enreg_destinataire();

    /// The record of the drag index into the dragged record, its volume still in percent.
    void lire_enreg_dragdrop();

private:
    void read_destination();
    void read_dragged();
    void check_null_volume();

    const Platform& platform_;
    ListState& list_;
    DestinationRecord& destination_;
    DraggedRecord& dragged_;
    std::function<void()> warn_of_null_volume_;
};

} // namespace sonarelle
