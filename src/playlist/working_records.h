#pragma once

#include <string>

#include "platform/numbers.h"
#include "playlist/enreg_liste.h"

namespace sonarelle {

/// A record of a list as the station works with it: the way by which a track passes from the list to a deck.
struct DestinationRecord {
    std::string dest_chemin = {};
    std::string dest_fin = {}; ///< End of play in seconds, as text.
    std::string dest_genre = {};
    std::string dest_duree = {}; ///< Always 8 characters.
    std::string dest_nom_fichier = {};
    double dest_debut = 0;            ///< Start of play in seconds.
    Integer dest_volume = 0;          ///< Attenuation in hundredths of a decibel, or a percentage that no row has.
    Integer dest_volume_pourcent = 0; ///< As the file had it.

    /// Percentage to attenuation and back, where the table has a row for the value; any other stays.
    void convertir_valeur_son();
    void convertir_valeur_son_ecriture();
};

/// The record of a list with its volume as an attenuation.
[[nodiscard]] DestinationRecord destination_of(const enreg_liste& record);

/// The row that is being dragged.
struct DraggedRecord {
    std::string drop_chemin;
    std::string drop_fin;
    std::string drop_genre;
    std::string drop_duree;
    double drop_debut = 0;
    Integer drop_volume;

    void convertir_valeur_son_drop();
};

} // namespace sonarelle
