#pragma once

#include <functional>
#include <string>

#include "playlist/list_document.h"
#include "playlist/liste_son.h"
#include "state/list_state.h"
#include "state/station_settings.h"

namespace sonarelle {

/// What empties the table, and what deletes the list's file. Window thread.
class ListClearing {
public:
    /// `row_on_air` gives the row of the list that plays, 0 for none.
    ListClearing(const Platform& platform, const StationSettings& settings, ListState& state, Liste_son& window,
                 ListDocument& document, std::function<int()> row_on_air);

    /// The table is empty and belongs to no file; list files stay. A list on the air asks first.
    void Effacer_liste();
    /// A name with wildcards deletes every file that it fits.
    void Supprimer_fichier();

    /// The menu of the rows opens: text of another program may be pasted.
    void offer_paste();

private:
    [[nodiscard]] bool may_empty() const;
    void empty();
    [[nodiscard]] bool may_delete(const std::string& name) const;
    [[nodiscard]] std::string names_of_files(const std::string& pattern) const;

    const Platform& platform_;
    const StationSettings& settings_;
    ListState& state_;
    Liste_son& window_;
    ListDocument& document_;
    std::function<int()> row_on_air_;
    std::string offered_; // the clipboard's text for which pasting was offered
};

} // namespace sonarelle
