#include "playlist/working_records.h"

#include "playlist/volume_table.h"

namespace sonarelle {

void DestinationRecord::convertir_valeur_son() {
    dest_volume = attenuation_of_percent(dest_volume.value()).value_or(dest_volume.value());
}

void DestinationRecord::convertir_valeur_son_ecriture() {
    dest_volume = percent_of_attenuation(dest_volume.value()).value_or(dest_volume.value());
}

void DraggedRecord::convertir_valeur_son_drop() {
    drop_volume = attenuation_of_percent(drop_volume.value()).value_or(drop_volume.value());
}

} // namespace sonarelle
