#include "playlist/list_editing.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "platform/application.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

constexpr std::string_view volume_of_pasted_row = "100";

/// The station's numbers end at 32767, the list's rows don't.
Integer place_in_words(int row) {
    return std::min(row, int{INT16_MAX});
}

} // namespace

ListEditing::ListEditing(const Platform& platform, ListState& state, ListAtWork& list, ListDocument& document, Air air)
    : platform_{platform},
      state_{state},
      list_{list},
      document_{document},
      air_{std::move(air)} {}

void ListEditing::edit(const std::function<void()>& statements, const std::string& heading) {
    try {
        statements();
    } catch (const Failure& failure) {
        list_.tell(heading + failure.what(), Icon::none);
    }
}

void ListEditing::copier_() {
    const int row = list_.rows().selected();
    if (row == 0 || !list_.allows(ListAction::copier_))
        return;
    edit([&] {
        copied_ = list_.read(row);
        list_.window().coller.enabled = true;
    });
}

void ListEditing::Couper_() {
    const int row = list_.rows().selected();
    if (row == 0 || !list_.allows(ListAction::Couper_))
        return;
    edit([&] { cut(row); });
}

void ListEditing::cut(int row) {
    copied_ = list_.read(row);
    take_out(row, true);
    if (list_.rows().count() == 0)
        air_.leave_list_modes();
    else
        list_.window().coller.enabled = true;
}

void ListEditing::coller_() {
    if (!copied_ || !list_.allows(ListAction::coller_))
        return;
    edit([this] { paste(list_.rows().selected() + 1); }, "Impossible de coller !  ");
}

void ListEditing::paste(int row) {
    RowTable::Row pasted = row_of(*copied_, platform_.decimal_mark);
    pasted[list_column::volume] = volume_of_pasted_row;
    state_.index_insertion = place_in_words(row);
    document_.edits.insert(row, std::move(pasted));
    document_.save_edit();
}

void ListEditing::supprime() {
    int row = list_.rows().selected();
    if (list_.rows().count() > 0 && (row == 0 || !may_go(row)))
        return;
    edit([&] { delete_row(row); });
}

void ListEditing::delete_row(int row) {
    if (row > 0) {
        take_out(row, !list_.window().a_Ne_pas_Sauve.checked);
        list_.window().list_status.caption = "Nb de morceaux : " + std::to_string(list_.rows().count());
    }
    if (list_.rows().count() == 0)
        air_.leave_list_modes();
}

void ListEditing::take_out(int row, bool saves) {
    state_.index_supprime = place_in_words(row);
    document_.edits.remove(row);
    if (saves)
        document_.save_edit();
    if (const int count = list_.rows().count(); count > 0)
        list_.rows().look_at(std::min(row, count));
}

bool ListEditing::may_go(int& row) {
    if (state_.ligne_en_lecture != row || !air_.list_runs())
        return true;
    const RowTable::Row wanted = list_.rows().row(row);
    const MessageBox question{std::string{name_of_path(wanted[list_column::path])} +
                                  " est à l'antenne\nRetirer cette ligne de la liste ?",
                              std::string{application_title}, Buttons::yes_no, Icon::question, 2};
    if (platform_.dialogs.MsgBox(question) != Answer::yes)
        return false;
    row = list_.place_of(wanted, row);
    return row <= list_.rows().count() && list_.rows().row(row) == wanted;
}

} // namespace sonarelle
