#pragma once

#include <functional>
#include <string>
#include <vector>

#include "playlist/list_at_work.h"
#include "playlist/list_document.h"
#include "playout/desk.h"
#include "playout/source_draw.h"

namespace sonarelle {

/// Makes the list, or its first row, of records that are drawn from a list file.
class RandomList {
public:
    RandomList(Desk& desk, ListDocument& document, ListAtWork& list, SourceDraw& draws, DrawControl& control,
               DrawTable& deja_tires);

    /// Appends one row, drawn from the list of the items. A list without records is told.
    void load_on();
    /// Asks for a list and appends as many rows as it has records. What fails is told, and leaves the rows that have
    /// come so far.
    void load_on_liste();

    /// In random order with jingles the list begins with a row that is drawn, and goes on with one behind each start;
    /// which list they come from is asked where none is named.
    void draw_first_row();
    /// Switches the insertion of list items on.
    std::function<void()> switch_items_on;

private:
    void append_all(const std::string& path);
    void append_one(ListReader& reader, int records, std::vector<std::string>& drawn);
    void tell_wrong_file(const std::string& name);
    void ask_for_source();

    Desk& desk_;
    ListDocument& document_;
    ListAtWork& list_;
    SourceDraw& draws_;
    DrawControl& control_;
    DrawSource source_;
};

} // namespace sonarelle
