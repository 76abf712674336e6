#pragma once

#include <functional>
#include <string>

#include "platform/platform.h"
#include "platform/row_table.h"
#include "playlist/enreg_liste.h"
#include "playlist/working_records.h"
#include "state/list_state.h"

namespace sonarelle {

/// Reads single records of the current list into the working records. A record that can't be read leaves the working
/// record as far as it was filled, without a word: the chain goes on and decides by what it finds there.
class RecordReading {
public:
    /// `warn_of_null_volume` is called once, for the first volume 0 since start-up.
    RecordReading(const Platform& platform, ListState& list, DestinationRecord& destination, DraggedRecord& dragged,
                  const RowTable& rows, std::function<void()> warn_of_null_volume);

    /// Record `index_destinataire` of `fichier_liste` into the destination record, its volume as an attenuation.
    /// Nothing without a list; an index of 0 becomes 1.
    void lire_enreg_destinataire();
    /// The same for a row that goes on the air. Where the file doesn't have this row, because it can't be read, or a
    /// save was not wanted, the row itself counts: no track plays with the end and the volume of another.
    void read_for_the_air();

    /// Any record, also behind the numbers that `index_destinataire` holds, without a warning. False when it can't be
    /// read; the destination record is then empty.
    bool read_record(int number);
    /// A record that doesn't come from the file, in the same way.
    void take(const enreg_liste& record);
    /// Gives the null volume warning, if it hasn't come yet.
    void check_null_volume();

    /// The record of the drag index into the dragged record, its volume still in percent.
    void lire_enreg_dragdrop();

private:
    [[nodiscard]] enreg_liste record_of_file(int number) const;
    [[nodiscard]] enreg_liste record_of_row(int number) const;
    void fill_destination(enreg_liste (RecordReading::*record_of)(int number) const);
    void read_dragged();
    void take_texts(const enreg_liste& record);
    void take_volume();

    const Platform& platform_;
    ListState& list_;
    DestinationRecord& destination_;
    DraggedRecord& dragged_;
    const RowTable& rows_;
    std::function<void()> warn_of_null_volume_;
};

} // namespace sonarelle
