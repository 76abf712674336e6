#pragma once

#include "platform/platform.h"
#include "playlist/enreg_liste.h"
#include "playlist/list_document.h"

namespace sonarelle {

/// Saves the rows as a list of a name of its own.
class ListSaveDialog {
public:
    ListSaveDialog(const Platform& platform, const StationSettings& settings, ListState& list, Liste_son& window,
                   ListDocument& document);

    /// Asks for a name that ends in dfm and writes the rows there; another ending saves nothing.
    void A_enreg_sous();
    /// Offers the loaded old list as a `.dfm` list.
    void A_Convertir_dfm();

private:
    void ask_and_save();
    [[nodiscard]] bool may_overwrite() const;
    void detecte_extention(const std::string& name);
    void write_rows(ListWriter& writer);
    void write_row(int row, enreg_liste& record);
    void announce_saved();

    const Platform& platform_;
    const StationSettings& settings_;
    ListState& list_;
    Liste_son& window_;
    ListDocument& document_;
};

} // namespace sonarelle
