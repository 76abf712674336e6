#include "playout/row_on_air.h"

#include "platform/text.h"
#include "playlist/list_file.h"
#include "playlist/list_rows.h"

namespace sonarelle {

std::optional<RowOnAir> row_on_air(const Platform& platform, const ListState& list, const Deck& deck) {
    RowOnAir row{list.ligne_en_lecture.value(), {}};
    ListReader reader{platform.disk, list_path(platform, list.fichier_liste)};
    if (row.number < 1 || row.number > reader.count())
        return std::nullopt;
    reader.read(row.number, row.record);
    if (!equal_ignoring_case(row.record.trimmed_chemin(), deck.path))
        return std::nullopt;
    return row;
}

} // namespace sonarelle
