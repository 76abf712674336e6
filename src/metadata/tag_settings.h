#pragma once

#include <string>
#include <string_view>

#include "platform/controls.h"
#include "platform/dialogs.h"
#include "platform/disk.h"

namespace sonarelle {

/// Writes one key of an initialisation file and returns a report of it. A write that fails is shown to the operator,
/// and the report is then empty.
std::string ecrire_ini(Disk& disk, Dialogs& dialogs, std::string_view fichier, std::string_view section,
                       std::string_view cle, std::string_view valeur);

/// The naming mask's one-time save: the file that it leaves is the mark that it was done. The disk, the dialogs and
/// the window's parts outlive it.
class TagSettings {
public:
    static constexpr std::string_view file_name = "antenne_fm_tag.ini";
    static constexpr std::string_view default_mask = "%titre% %artiste% %album% %annee% %piste% %commentaire% %genre%";
    static constexpr std::string_view save_caption = "Sauvegarder paramètres";
    static constexpr std::string_view frame_caption =
        "Initialisation des paramètres de sauvegarde des infos du  fichiers (tag) Effectuer cette opération (une seule "
        "fois)";

    /// `txtmasque` holds the mask, which is stored as typed; `save_button` is pressed to save it.
    TagSettings(Disk& disk, Dialogs& dialogs, std::string program_folder, const TextBox& txtmasque,
                Button& save_button);

    /// Switches the button off when the mark lies in the current folder. That is not always the program's folder, into
    /// which `save` writes.
    void window_loads();

    /// Saves the mask, says so, and switches the button off. No fault comes out.
    void save();

private:
    Disk& disk_;
    Dialogs& dialogs_;
    std::string program_folder_;
    const TextBox& txtmasque_;
    Button& save_button_;
};

} // namespace sonarelle
