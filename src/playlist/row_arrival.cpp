#include "playlist/row_arrival.h"

#include <algorithm>
#include <cstdint>

#include "platform/failure.h"
#include "playlist/dropped_files.h"
#include "playlist/list_rows.h"

namespace sonarelle {

RowArrival::RowArrival(const Platform& platform, ListState& state, ChainState& chain, ListAtWork& list,
                       ListDocument& document, ListUpdate& update)
    : platform_{platform},
      state_{state},
      chain_{chain},
      list_{list},
      document_{document},
      update_{update} {
    choose(2);
}

void RowArrival::choose(int mode) {
    state_.mode_insertion = mode;
    int place = 0;
    for (MenuItem* entry : list_.window().insertion_modes())
        entry->checked = ++place == mode;
}

int RowArrival::next_place() const {
    const int count = list_.rows().count();
    const int chosen = state_.index_insertion.value();
    if (count == 0)
        return 1;
    if (state_.mode_insertion == 3)
        return count + 1;
    const int place = state_.mode_insertion == 2 ? std::min(chosen, count) + 1 : std::min(chosen, count + 1);
    return std::max(place, 1);
}

void RowArrival::drop_files(const std::vector<std::string>& paths) {
    if (!state_.glisser_autorise.is_true() || paths.empty() || !list_.allows(ListAction::drop_files))
        return;
    state_.ajout_explorateur = true;
    try {
        insert_files(files_of_drop(platform_.disk, paths));
    } catch (const Failure& failure) {
        list_.tell(failure.what(), Icon::none);
    }
    state_.ajout_explorateur = chain_.maj_depuis_ajout = false;
}

void RowArrival::insert_files(const std::vector<std::string>& paths) {
    if (paths.empty())
        return;
    const int first = next_place();
    int place = first;
    for (const std::string& path : paths)
        document_.edits.insert(place++, row_of_file(path));
    state_.index_insertion = std::min(place - 1, int{INT16_MAX});
    document_.save_edit();
    if (paths.size() > 1 || first > INT16_MAX)
        return update_.update_dropped_rows(first, static_cast<int>(paths.size()));
    chain_.maj_depuis_ajout = true;
    update_.a_mettre_a_jour();
}

RowTable::Row RowArrival::row_of_file(const std::string& path) const {
    RowTable::Row row;
    row[list_column::path] = path;
    row[list_column::start] = default_start;
    row[list_column::end] = Format(0.0, start_pattern, platform_.decimal_mark);
    row[list_column::volume] = "100";
    return row;
}

} // namespace sonarelle
