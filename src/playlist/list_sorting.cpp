#include "playlist/list_sorting.h"

#include "platform/application.h"
#include "platform/failure.h"

namespace sonarelle {

void ListSorting::press_heading() {
    if (list_.rows().count() == 0 || !list_.allows(ListAction::sort_rows) || !may_sort())
        return;
    const ListWork work = list_.begin();
    try {
        document_.edits.sort(next_order_);
        next_order_ = next_order_ == SortOrder::ascending ? SortOrder::descending : SortOrder::ascending;
        document_.save_edit();
    } catch (const Failure& failure) {
        list_.tell(failure.what(), Icon::none);
    }
}

bool ListSorting::may_sort() const {
    const MessageBox question{"Vous allez modifier l'ordre de lecture de la liste ..\n"
                              "il est possible de la sauvegarder au paravent!\n"
                              "Continuer le trie ?",
                              std::string{application_title}, Buttons::yes_no, Icon::question, 2};
    return platform_.dialogs.MsgBox(question) == Answer::yes;
}

} // namespace sonarelle
