#pragma once

#include <deque>
#include <optional>
#include <string>

#include "platform/numbers.h"
#include "platform/units.h"

namespace sonarelle {

/// Whether the air is to sound.
enum class AirState {
    off,   ///< Nothing was started yet, or the operator has stopped it.
    on,    ///< A deck was started, and the chain follows.
    failed ///< A fault has stopped the chain, or its start.
};

/// What the routines of the decks and of the chain share.
struct ChainState {
    Integer lecteur_en_cours; ///< The main deck: 1 to 3, 0 for none.

    std::string chemin_lecture;  ///< The file on deck 1; empty for none.
    std::string chemin_lecture2; ///< The file on deck 2.
    std::string chemin_lecture3; ///< The file on deck 3.

    [[nodiscard]] std::string& path_of_deck(int deck) {
        return deck == 1 ? chemin_lecture : deck == 2 ? chemin_lecture2 : chemin_lecture3;
    }

    std::string chemin_precedent;   ///< The list's `chemin_fichier` at the last start of a track.
    Integer element_en_cours;       ///< Row of the current item.
    Integer index_debut_aleatoire;  ///< Row at which a run started, for the insertion of jingles.
    Integer index_debut_aleatoire1; ///< The same for the insertion of list items.

    std::string extension_fichier; ///< Of the file that was named last: its last three characters, lower case.

    Flag mode_enchainement;  ///< True: chain from the list; false: chain over decks.
    Flag ordre_aleatoire;    ///< The next row comes by draw.
    Flag jingles_aleatoires; ///< Random order with jingles from a file.
    Flag chaine_suspendue;   ///< The chain's timers do nothing.
    Flag preecoute_active;   ///< Every track is cut at `duree_preecoute`.
    Flag ecoute_demandee;    ///< One-off listening: the next list load takes `chemin_ecoute`.
    Flag ecoute_en_cours;
    Integer duree_preecoute; ///< Seconds.
    std::string chemin_ecoute;

    Integer duree_lecteur;       ///< End point of the main deck, seconds.
    Integer point_chargement;    ///< Elapsed second of the load.
    Integer dernier_point_mix;   ///< The last mix point of the list chain, seconds.
    Flag choix_prepare;          ///< The load step has drawn the next row already.
    Flag chargement_fait;        ///< The load step has loaded the next deck.
    Integer nb_fichiers_ecoutes; ///< Tracks started.
    bool overflow_noted = false; ///< The journal has that they are more than a counter holds.
    Integer position_zap;        ///< Position of the incoming deck at the last operator zap, whole seconds.
    Integer lecteur_mix_special; ///< The deck of the special mix; 0 for none.
    Integer compteur_aleatoire;  ///< Tracks started since the last jingle.
    Integer compteur_aleatoire1;
    Integer nb_tirages_nuls;               ///< Draws that hit a row played before, in this run and cycle.
    bool null_draws_noted = false;         ///< The journal has that they are more than a counter holds.
    std::deque<std::string> started_paths; ///< Files of the last starts, the newest one last.
    static constexpr std::size_t most_started_paths = 100;
    std::string chemin_ajoute; ///< Path of the list item that was inserted last.
    Flag demande_ajout;        ///< A track has started since the last insertion of a list item.

    AirState air = AirState::off;
    Frames air_since;                   ///< When it left `off`.
    std::optional<Frames> silent_since; ///< Begin of the silence that is told now.

    Flag journal_actif;
    std::string ligne_journal;
    Flag ajout_externe; ///< The file of the next hand load was dragged.
    Flag maj_depuis_ajout;
};

} // namespace sonarelle
