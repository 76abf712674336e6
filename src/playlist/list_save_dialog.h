#pragma once

#include "platform/platform.h"
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
    void write_rows();
    void announce_saved();

    const Platform& platform_;
    const StationSettings& settings_;
    ListState& list_;
    Liste_son& window_;
    ListDocument& document_;
};

/// The name with its last four characters replaced by ".dfm".
/// @throws Failure 5 for a name of fewer than four characters.
[[nodiscard]] std::string with_dfm_ending(std::string_view name);

} // namespace sonarelle
