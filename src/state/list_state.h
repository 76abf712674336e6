#pragma once

#include <string>

#include "platform/numbers.h"

namespace sonarelle {

/// What the routines of the playlist share with each other and with the decks.
struct ListState {
    std::string fichier_liste;           ///< The list file in use; every record read goes to it. Empty: none.
    std::string fichier_liste_precedent; ///< Its copy, taken at each load.
    std::string nom_fichier;             ///< The name with which the last load or save worked.
    std::string nom_sauvegarde;          ///< The name that the save dialog offers.
    std::string extension_fichier;       ///< Last three characters of the name just chosen, lower case, or empty.
    std::string chemin_fichier;          ///< Path of the row on which the chain is, or that was last sent to a deck.

    Integer index_en_cours;       ///< Row that is selected after a load or save, and the row that the chain is on.
    Integer ligne_en_lecture;     ///< Row now being played.
    Integer index_insertion;      ///< Row behind which new rows come.
    Integer index_supprime;       ///< Row last cut or removed.
    Integer mode_insertion;       ///< 1 before the selected row, 2 after it, 3 at the end.
    Flag glisser_autorise = true; ///< Rows and files may be dragged onto the list and the open buttons.

    Flag glisser_en_cours;  ///< A row is pressed, and may be on its way to another place.
    Flag ajout_explorateur; ///< Files of another program are being dropped on the list.

    Flag maj_liste_en_cours;          ///< The whole list is being measured anew.
    bool sans_test_existence = false; ///< An old list that is opened isn't tested.
    Flag edition_chemin;              ///< The path of a row may be edited in place.

    Flag volume_nul_signale; ///< The null volume warning has come since start-up.
};

} // namespace sonarelle
