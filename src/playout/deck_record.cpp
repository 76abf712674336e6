#include "playout/deck_record.h"

#include "platform/failure.h"
#include "playlist/list_file.h"
#include "playlist/list_rows.h"

namespace sonarelle {

void DeckRecord::lire() {
    ErrorIndicator{}.skip([this] { read(); });
}

void DeckRecord::read() {
    enter_program_folder(platform_);
    if (list_.index_destinataire == 0)
        list_.index_destinataire = 1;
    enreg_liste record;
    ListReader{platform_.disk, list_path(platform_, chain_.fichier_courant)}.read(list_.index_destinataire.value(),
                                                                                  record);
    destination_.dest_chemin = record.trimmed_chemin();
    destination_.dest_debut = 0; // that of another record is none of this one
    destination_.dest_fin = text_of(end_point_to_integer(record.trimmed_fin_lecture()));
    destination_.dest_genre = record.trimmed_genre();
    destination_.dest_volume = record.volume();
    destination_.dest_debut = record.debut_lecture();
    destination_.dest_duree = record.duree_piste();
}

} // namespace sonarelle
