#include "playlist/path_editing.h"

namespace sonarelle {

void PathEditing::choose(bool editable) {
    list_.edition_chemin = editable;
    window_.modifier_chemin.checked = editable;
    window_.modifier_chemin_non.checked = !editable;
}

void PathEditing::follow() {
    window_.rows.label_editing = list_.edition_chemin.is_true() ? LabelEditing::automatic : LabelEditing::manual;
}

void PathEditing::label_edited() {
    if (!window_.a_Ne_pas_Sauve.checked)
        document_.sauve_tout();
}

} // namespace sonarelle
