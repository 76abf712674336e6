#include "playlist/list_guard.h"

#include "platform/dialogs.h"
#include "platform/paths.h"
#include "playlist/list_rows.h"
#include "state/station_settings.h"

namespace sonarelle {

namespace {

void refuse(Dialogs& dialogs, const char* text, Icon icon) {
    show_box(dialogs, text, icon);
}

} // namespace

bool ListGuard::allows(ListAction action) const {
    const ListActionRow& row = list_action(action);
    if (at_work_) {
        if (row.tells_work)
            refuse(platform_.dialogs, "Un traitement de la liste est en cours\nAttendez qu'il soit fini",
                   Icon::information);
        return false;
    }
    if (row.needs_saving && window_.a_Ne_pas_Sauve.checked) {
        refuse(platform_.dialogs,
               "Traitement impossible avec l'option\n"
               "Ne pas sauver les modifications dans le fichier par défaut\n"
               "Sauvegarder cette liste",
               Icon::information);
        return false;
    }
    if (row.needs_dfm && !is_dfm()) {
        refuse(platform_.dialogs, "Sauvegarder dans format .dfm avant traitement !", Icon::warning);
        return false;
    }
    return true;
}

// The name that is offered for saving tells the list's form; that of an old list changes before its file has.
bool ListGuard::is_dfm() const {
    const std::string_view offered = list_.nom_sauvegarde.empty() ? default_list : list_.nom_sauvegarde;
    const std::string_view in_use = list_.fichier_liste.empty() ? default_list : list_.fichier_liste;
    return extension_of(offered) == "dfm" && extension_of(in_use) == "dfm";
}

} // namespace sonarelle
