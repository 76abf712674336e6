#include "station/list_maintenance.h"

#include "playout/desk.h"
#include "playout/journal.h"

namespace sonarelle {

ListMaintenance::ListMaintenance(Desk& desk, fsauve& progress, RecordReading& record_reading, ListDocument& document,
                                 ListSaveDialog& save_dialog, Journal& journal)
    : list{desk.platform, desk.list, desk.list_window, progress, record_reading, document},
      verification{desk.platform, desk.chain, list, [&journal](const std::string& line) { journal.note(line); }},
      changes{desk.platform, list},
      update{desk.platform, desk.list, desk.chain, list, save_dialog, verification},
      editor{desk.platform, desk.settings, list},
      path_editing{desk.list, desk.list_window, document} {
    connect(desk.list_window);
}

void ListMaintenance::connect(Liste_son& window) {
    window.prechar.on_click = [this] { verification.prechar(); };
    window.prechar_fich.on_click = [this] { verification.prechar_fich(); };
    window.Modifier_lettre_lecteur.on_click = [this] { changes.Modifier_lettre_lecteur(); };
    window.Modifier_volume.on_click = [this] { changes.Modifier_volume(); };
    window.a_debutpiste.on_click = [this] { changes.a_debutpiste(); };
    window.a_debutpiste_fichier.on_click = [this] { changes.a_debutpiste_fichier(); };
    window.a_mettre_a_jour.on_click = [this] { update.a_mettre_a_jour(); };
    window.a_mettre_a_jour_liste.on_click = [this] { update.a_mettre_a_jour_liste(); };
    window.a_modifie_morceau.on_click = [this] { editor.a_modifie_morceau(); };
    window.modifier_chemin.on_click = [this] { path_editing.modifier_chemin(); };
    window.modifier_chemin_non.on_click = [this] { path_editing.modifier_chemin_non(); };
    window.rows.on_label_edited = [this] { path_editing.label_edited(); };
}

} // namespace sonarelle
