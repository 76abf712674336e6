#pragma once

#include <string>
#include <string_view>

#include "platform/numbers.h"
#include "platform/platform.h"
#include "platform/row_table.h"
#include "playlist/enreg_liste.h"
#include "playlist/working_records.h"

namespace sonarelle {

/// Columns of the list's rows.
namespace list_column {
inline constexpr std::size_t path = 0;
inline constexpr std::size_t start = 1;
inline constexpr std::size_t end = 2;
inline constexpr std::size_t genre = 3;
inline constexpr std::size_t volume = 4;
inline constexpr std::size_t duration = 5;
} // namespace list_column

inline constexpr std::string_view start_pattern = "####0.00";
/// Every new row begins a tenth of a second into its file.
inline constexpr std::string_view default_start = "0.10";
/// What a list of a name of its own has where no duration was measured.
inline constexpr std::string_view unknown_duration = "X";
inline constexpr std::string_view default_list = "liste.dfm";
/// What the default list was before the rows of another list took its place.
inline constexpr std::string_view previous_list = "liste précédente.dfm";

/// A record as the list window shows it. An old record has no start of play: it gets "0.10", as every new row does.
[[nodiscard]] RowTable::Row row_of(const enreg_liste& record, DecimalMark mark);
[[nodiscard]] RowTable::Row row_of(const enreg_rfm& record, DecimalMark mark);

/// The same of a record with its volume as an attenuation.
[[nodiscard]] RowTable::Row row_of(const DestinationRecord& record, DecimalMark mark);

/// Fills one field after the other from the cells of a row. `statement` runs each of the assignments, so that the
/// caller decides what a cell that can't be converted does: stop it all, or leave the field as it is.
template <typename Runner>
void fill_record(enreg_liste& record, const RowTable::Row& row, DecimalMark mark, Runner&& statement) {
    statement([&] { record.set_chemin(row[list_column::path]); });
    statement([&] { record.set_debut_lecture(to_double(row[list_column::start], mark)); });
    statement([&] { record.set_fin_lecture(row[list_column::end]); });
    statement([&] { record.set_genre(row[list_column::genre]); });
    statement(
        [&] { record.set_volume(static_cast<std::int16_t>(to_integer(row[list_column::volume], mark).value())); });
    statement([&] { record.set_duree_piste(row[list_column::duration]); });
}

/// The record of a row. A cell that can't be converted leaves its field empty.
[[nodiscard]] enreg_liste record_of_cells(const RowTable::Row& row, DecimalMark mark);

/// Makes the program's drive and folder the current ones, in which relative names resolve.
void enter_program_folder(const Platform& platform);

/// The place of a list: a relative name lies in the program's folder.
[[nodiscard]] std::string list_path(const Platform& platform, std::string_view name);

} // namespace sonarelle
