#include "playlist/audio_editor.h"

#include "platform/failure.h"
#include "platform/shell.h"

namespace sonarelle {

void AudioEditor::a_modifie_morceau() {
    if (!list_.allows(ListAction::a_modifie_morceau))
        return;
    const std::string path = path_of_selected_row();
    if (path.empty())
        list_.tell("Pas de nom de fichier!", Icon::warning);
    else
        open(path);
}

void AudioEditor::open(const std::string& path) {
    const std::string& editor = settings_.chemin_editeur_audio;
    if (editor.empty() || editor == "X")
        return list_.tell("Aucun éditeur audio", Icon::warning);
    try {
        platform_.shell.start_program(editor, path);
    } catch (const Failure& failure) {
        list_.tell(failure.what(), Icon::warning);
    }
}

std::string AudioEditor::path_of_selected_row() {
    const int row = list_.rows().selected();
    return row == 0 ? std::string{} : list_.read(row).dest_chemin;
}

} // namespace sonarelle
