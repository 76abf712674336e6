#pragma once

#include <string>

#include "platform/numbers.h"

namespace sonarelle {

/// What the routines of the decks and of the chain share.
struct ChainState {
    Integer lecteur_en_cours;    ///< The main deck: 1 to 3, 0 for none.
    std::string fichier_courant; ///< The list file that `lire` reads.
};

} // namespace sonarelle
