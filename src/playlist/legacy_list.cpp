#include "playlist/legacy_list.h"

#include <utility>

#include "platform/dialogs.h"
#include "platform/paths.h"
#include "playlist/enreg_liste.h"

namespace sonarelle {

LegacyList::LegacyList(const Platform& platform, const StationSettings& settings, ListState& list,
                       ListDocument& document, ListSaveDialog& save_dialog, std::function<void()> test_files)
    : platform_{platform},
      settings_{settings},
      list_{list},
      document_{document},
      save_dialog_{save_dialog},
      test_files_{std::move(test_files)} {}

void LegacyList::A_Copen_rfm() {
    document_.run_load([this] {
        const std::string name_before = list_.nom_fichier;
        const std::string name = name_of_old_list();
        list_.fichier_liste = list_.nom_fichier = name;
        if (name.empty())
            list_.fichier_liste = list_.nom_fichier = name_before;
        else
            append_old_list(name);
    });
}

void LegacyList::append_old_list(const std::string& name) {
    document_.append_records<enreg_rfm>(name);
    document_.announce_list();
    save_dialog_.A_Convertir_dfm();
    // Until it has been saved there are no records that could be tested.
    const bool saved = list_.fichier_liste != name && extension_of(list_.fichier_liste) == "dfm";
    if (saved && !list_.sans_test_existence)
        test_files_();
    document_.a_mettre_Enabled();
}

// After a cancel the dialog's pattern runs on as the name, which opens nothing; it must not wait as the name of the
// next try, or the dialog would never come again. Records of another size read as old ones are rubbish in the rows.
std::string LegacyList::name_of_old_list() {
    if (extension_of(list_.nom_sauvegarde) == "rfm")
        return list_.nom_sauvegarde;
    const ChosenFile chosen = platform_.dialogs.open_file(
        {"Ouvrir un fichier liste", settings_.chemin_programme, "*.rfm", "fichier (*.rfm)|*.rfm"});
    if (chosen.cancelled)
        return chosen.file_name;
    if (extension_of(chosen.file_name) != "rfm" && !wants_to_read(chosen.file_name))
        return {};
    list_.nom_sauvegarde = chosen.file_name;
    return chosen.file_name;
}

bool LegacyList::wants_to_read(const std::string& name) const {
    const MessageBox question{name +
                                  "\nn'est pas une liste .rfm : ses lignes seront illisibles.\nL'ouvrir quand mème ?",
                              std::string{application_title}, Buttons::yes_no, Icon::warning, 2};
    return platform_.dialogs.MsgBox(question) == Answer::yes;
}

} // namespace sonarelle
