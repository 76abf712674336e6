#include "playlist/row_edits.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace sonarelle {

int RowEdits::next_in_order() const {
    if (chain_.choix_prepare.is_true())
        return 0;
    const int current = list_.index_en_cours.value();
    return current < rows_.count() ? current + 1 : 1;
}

// A row that was loaded ahead stays so only where it is still the next one.
template <typename PlaceOf>
void RowEdits::follow(int next_before, const PlaceOf& place_of) {
    for (Integer* place : named_places())
        *place = std::min(place_of(place->value()), int{INT16_MAX});
    if (next_before != 0 && place_of(next_before) != next_in_order())
        chain_.chargement_fait = false;
}

void RowEdits::insert(int number, RowTable::Row row) {
    const int next = next_in_order();
    rows_.insert(number, std::move(row));
    follow(next, [number](int place) { return place >= number ? place + 1 : place; });
}

void RowEdits::remove(int number) {
    const int next = next_in_order();
    rows_.remove(number);
    const bool chain_is_on_it = list_.index_en_cours == number;
    if (chain_is_on_it)
        give_up_prepared_row();
    if (next == number)
        chain_.chargement_fait = false;
    if (chain_is_on_it && chain_.lecteur_en_cours != 0)
        list_.index_en_cours -= 1;
    follow(next, [number](int place) { return place > number ? place - 1 : place; });
}

void RowEdits::move(int number, int target) {
    const int landing = target > number ? target - 1 : target;
    RowTable::Row row = rows_.row(number);
    (void)rows_.row(target);
    if (landing == number)
        return;
    const int next = next_in_order();
    const bool selected = rows_.selected() == number;
    rows_.remove(number);
    rows_.insert(landing, std::move(row));
    if (selected)
        rows_.select(landing);
    follow(next, [number, landing](int place) {
        if (place == number)
            return landing;
        if (place > number && place <= landing)
            return place - 1;
        return place < number && place >= landing ? place + 1 : place;
    });
}

void RowEdits::clear() {
    rows_.clear();
    list_.ligne_en_lecture = list_.index_en_cours = list_.index_insertion = chain_.element_en_cours = 0;
    give_up_prepared_row();
}

void RowEdits::sort(SortOrder order) {
    const std::array<Integer*, 4> places = named_places();
    std::array<RowTable::Row, 4> rows;
    for (std::size_t place = 0; place < places.size(); ++place)
        if (const int number = places[place]->value(); number >= 1 && number <= rows_.count())
            rows[place] = rows_.row(number);
    rows_.sort_by(0, order);
    for (int number = 1; number <= std::min(rows_.count(), int{INT16_MAX}); ++number)
        for (std::size_t place = 0; place < places.size(); ++place)
            if (!rows[place].front().empty() && rows_.row(number) == rows[place])
                *places[place] = number;
    give_up_prepared_row();
}

std::array<Integer*, 4> RowEdits::named_places() const {
    return {&list_.ligne_en_lecture, &list_.index_en_cours, &list_.index_insertion, &chain_.element_en_cours};
}

void RowEdits::give_up_prepared_row() const {
    chain_.choix_prepare = false;
    chain_.chargement_fait = false;
}

} // namespace sonarelle
