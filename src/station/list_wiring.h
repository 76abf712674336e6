#pragma once

#include "configuration/colour_themes.h"
#include "playlist/list_clearing.h"
#include "playlist/list_editing.h"
#include "playlist/list_search.h"
#include "playlist/list_sorting.h"
#include "playlist/row_arrival.h"
#include "playlist/row_drag.h"
#include "playlist/search_words.h"

namespace sonarelle {

class Station;

/// What the list window's rows, labels, menus and keys do, beyond what plays: the parts, connected to the window.
class ListWiring {
public:
    explicit ListWiring(Station& station);
    ListWiring(const ListWiring&) = delete;
    ListWiring& operator=(const ListWiring&) = delete;

    ListEditing editing;
    ListClearing clearing;
    RowDrag drag;
    RowArrival arrival;
    ListSorting sorting;
    SearchWords search_words;
    ListSearch search;
    ColourThemes themes;

private:
    void connect_rows();
    void connect_editing();
    void connect_search();
    void connect_look();
    void connect_labels();
    void choose_row();
    void press_key(char32_t character);
    /// True where the rows take it, which have the keyboard.
    bool press_key_of_rows(char32_t character);
    void tell_count();
    void open_explorer();

    Station& station_;
};

} // namespace sonarelle
