#include "playlist/working_records.h"

#include "platform/paths.h"
#include "platform/text.h"
#include "playlist/volume_table.h"

namespace sonarelle {

void DestinationRecord::convertir_valeur_son() {
    dest_volume = attenuation_of_percent(dest_volume.value()).value_or(dest_volume.value());
}

void DestinationRecord::convertir_valeur_son_ecriture() {
    dest_volume = percent_of_attenuation(dest_volume.value()).value_or(dest_volume.value());
}

DestinationRecord destination_of(const enreg_liste& record) {
    DestinationRecord destination;
    destination.dest_chemin = record.trimmed_chemin();
    destination.dest_fin = lower_case(record.trimmed_fin_lecture());
    destination.dest_genre = record.trimmed_genre();
    destination.dest_duree = record.duree_piste();
    destination.dest_nom_fichier = name_of_path(destination.dest_chemin);
    destination.dest_debut = record.debut_lecture();
    destination.dest_volume = destination.dest_volume_pourcent = record.volume();
    if (destination.dest_volume < 101)
        destination.convertir_valeur_son();
    return destination;
}

void DraggedRecord::convertir_valeur_son_drop() {
    drop_volume = attenuation_of_percent(drop_volume.value()).value_or(drop_volume.value());
}

} // namespace sonarelle
