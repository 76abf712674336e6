#include "playlist/row_edits.h"

#include <utility>

namespace sonarelle {

void RowEdits::insert(int number, RowTable::Row row) {
    rows_.insert(number, std::move(row));
    if (is_next_in_order(number))
        give_up_loaded_row();
    for (Integer* place : {&list_.ligne_en_lecture, &list_.index_en_cours, &chain_.element_en_cours})
        if (place->value() >= number)
            *place += 1;
}

void RowEdits::remove(int number) {
    rows_.remove(number);
    const bool chain_is_on_it = list_.index_en_cours == number;
    if (is_next_in_order(number) || chain_is_on_it)
        give_up_loaded_row();
    if (chain_is_on_it)
        chain_.choix_prepare = false;
    for (Integer* place : {&list_.ligne_en_lecture, &list_.index_en_cours, &chain_.element_en_cours})
        if (place->value() > number)
            *place -= 1;
    if (chain_is_on_it && chain_.lecteur_en_cours != 0)
        list_.index_en_cours -= 1;
}

} // namespace sonarelle
