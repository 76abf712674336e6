#pragma once

#include "playout/insertion.h"
#include "playout/random_list.h"
#include "playout/source_draw.h"

namespace sonarelle {

/// What comes into the list by draw: jingles and list items while it runs, rows of which it is made, and the switches
/// and entries of the list window that belong to it.
class DrawnRows {
public:
    DrawnRows(Desk& desk, Journal& journal, ListDocument& document, ListAtWork& list, DrawControl& control,
              DrawTables& tables);

    SourceDraw draws;
    Insertion jingles;
    Insertion items;
    RandomList random_list;

private:
    void connect(Desk& desk, DrawControl& control);
    static void connect_switch(Desk& desk, Insertion& insertion, Label& label, Image& lamp);
};

} // namespace sonarelle
