#pragma once

#include "playlist/list_document.h"
#include "playlist/liste_son.h"
#include "state/list_state.h"

namespace sonarelle {

/// Whether the path of a row may be edited in the list itself. The view follows at the next press on a row.
class PathEditing {
public:
    PathEditing(ListState& list, Liste_son& window, ListDocument& document)
        : list_{list},
          window_{window},
          document_{document} {}

    void modifier_chemin() { choose(true); }
    void modifier_chemin_non() { choose(false); }

    /// A row was pressed.
    void follow();
    /// Another path was typed: it plays from now on, unless modifications aren't to be saved.
    void label_edited();

private:
    void choose(bool editable);

    ListState& list_;
    Liste_son& window_;
    ListDocument& document_;
};

} // namespace sonarelle
