#include "playout/deck_record.h"

#include <utility>

#include "platform/failure.h"
#include "playlist/list_file.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

void fill(DestinationRecord& destination, const enreg_liste& record) {
    destination.dest_chemin = record.trimmed_chemin();
    destination.dest_genre = record.trimmed_genre();
    destination.dest_volume = record.volume();
    destination.dest_debut = record.debut_lecture();
    destination.dest_duree = record.duree_piste();
    // Last, since it may be no number, and nothing else of the record before belongs to this one.
    destination.dest_fin = text_of(end_point_to_integer(record.trimmed_fin_lecture()));
}

} // namespace

DestinationRecord lire(const Platform& platform, const std::string& fichier_courant, Integer index_destinataire,
                       DestinationRecord before) {
    DestinationRecord destination = std::move(before);
    ErrorIndicator{}.skip([&] {
        enter_program_folder(platform);
        ListReader list{platform.disk, list_path(platform, fichier_courant)};
        enreg_liste record;
        list.read(index_destinataire == 0 ? 1 : index_destinataire.value(), record);
        fill(destination, record);
    });
    return destination;
}

} // namespace sonarelle
