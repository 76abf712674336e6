#pragma once

#include <functional>
#include <optional>

#include "platform/platform.h"
#include "platform/row_table.h"
#include "playlist/enreg_liste.h"
#include "playlist/working_records.h"
#include "state/list_state.h"

namespace sonarelle {

/// Reads single records of the current list. A record that can't be read is none, without a word: the chain goes on and
/// decides by what it gets.
class RecordReading {
public:
    /// `warn_of_null_volume` is called once, for the first volume 0 since start-up.
    RecordReading(const Platform& platform, ListState& list, const RowTable& rows,
                  std::function<void()> warn_of_null_volume);

    /// A record of `fichier_liste`, its volume as an attenuation; number 0 is the first one. Without a list, or where
    /// it can't be read, the record stays as it was `before`.
    [[nodiscard]] DestinationRecord lire_enreg_destinataire(Integer index_destinataire, DestinationRecord before = {});
    /// The same for a row that goes on the air. Where the file doesn't have this row, because it can't be read, or a
    /// save was not wanted, the row itself counts: no track plays with the end and the volume of another.
    [[nodiscard]] DestinationRecord read_for_the_air(Integer row);

    /// Any record, also behind the station's 16-bit numbers, without a warning; none when it can't be read.
    [[nodiscard]] std::optional<DestinationRecord> read_record(int number) const;
    /// Gives the null volume warning, if it hasn't come yet.
    void check_null_volume();

    /// The record of a row that is dragged, its volume still in percent; empty when it can't be read.
    [[nodiscard]] DraggedRecord lire_enreg_dragdrop(Integer index_glisse) const;

private:
    using RecordOf = enreg_liste (RecordReading::*)(int number) const;

    [[nodiscard]] enreg_liste record_of_file(int number) const;
    [[nodiscard]] enreg_liste record_of_row(int number) const;
    [[nodiscard]] DestinationRecord read(Integer number, RecordOf record_of, DestinationRecord before);
    [[nodiscard]] DraggedRecord read_dragged(int number) const;

    const Platform& platform_;
    ListState& list_;
    const RowTable& rows_;
    std::function<void()> warn_of_null_volume_;
};

} // namespace sonarelle
