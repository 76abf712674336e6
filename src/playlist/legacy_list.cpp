#include "playlist/legacy_list.h"

#include "platform/dialogs.h"
#include "playlist/enreg_liste.h"

namespace sonarelle {

LegacyList::LegacyList(const Platform& platform, const StationSettings& settings, ListState& list, Liste_son& window,
                       ListDocument& document, ListSaveDialog& save_dialog)
    : platform_{platform}, settings_{settings}, list_{list}, window_{window}, document_{document}, save_dialog_{
                                                                                                       save_dialog} {}

void LegacyList::A_Copen_rfm() {
    document_.load([this] {
        const std::string name_before = list_.nom_fichier;
        const std::string name = name_of_old_list();
        list_.fichier_liste = name;
        list_.nom_fichier = name;
        list_.nom_sauvegarde = name;
        if (name.empty()) {
            list_.fichier_liste = list_.nom_fichier = name_before;
            return;
        }
        document_.append_records<enreg_rfm>(name);
        document_.announce_list();
        save_dialog_.A_Convertir_dfm();
        document_.a_mettre_Enabled();
    });
}

std::string LegacyList::name_of_old_list() {
    if (!list_.nom_sauvegarde.empty())
        return list_.nom_sauvegarde;
    return platform_.dialogs
        .open_file({"Ouvrir un fichier liste", settings_.chemin_programme, "*.rfm", "fichier (*.rfm)|*.rfm"})
        .file_name;
}

} // namespace sonarelle
