#include "playlist/audio_editor.h"

#include "platform/dialogs.h"
#include "platform/failure.h"
#include "platform/shell.h"

namespace sonarelle {

void AudioEditor::a_modifie_morceau() {
    if (!guard_.allows(ListAction::a_modifie_morceau))
        return;
    const std::string path = path_of_selected_row();
    if (path.empty())
        tell("Pas de nom de fichier!");
    else
        open(path);
}

void AudioEditor::open(const std::string& path) {
    const std::string& editor = settings_.chemin_editeur_audio;
    if (editor.empty() || editor == "X")
        return tell("Aucun éditeur audio");
    try {
        platform_.shell.start_program(editor, path);
    } catch (const Failure& failure) {
        tell(failure.what());
    }
}

std::string AudioEditor::path_of_selected_row() {
    const int row = window_.rows.selected();
    return row == 0 ? std::string{} : reading_.read(row).dest_chemin;
}

void AudioEditor::tell(const std::string& text) {
    show_box(platform_.dialogs, text, Icon::warning);
}

} // namespace sonarelle
