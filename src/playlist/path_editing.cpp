#include "playlist/path_editing.h"

namespace sonarelle {

void PathEditing::choose(bool editable) {
    list_.edition_chemin = editable;
    window_.modifier_chemin.checked = editable;
    window_.modifier_chemin_non.checked = !editable;
}

void PathEditing::follow() {
    const bool editable = list_.edition_chemin.is_true() && !window_.a_Ne_pas_Sauve.checked;
    window_.rows.label_editing = editable ? LabelEditing::automatic : LabelEditing::manual;
}

void PathEditing::label_edited() {
    if (!window_.a_Ne_pas_Sauve.checked)
        document_.sauve_tout();
}

} // namespace sonarelle
