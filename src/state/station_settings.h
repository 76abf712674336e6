#pragma once

#include <string>

#include "platform/application.h"
#include "platform/control.h"
#include "platform/numbers.h"
#include "platform/units.h"

namespace sonarelle {

/// The settings as the running program has them: read from the store when the main window is made, the truth from then
/// on.
struct StationSettings {
    std::string chemin_programme;     ///< The program's folder, with a backslash at its end.
    std::string chemin_jingles;       ///< Folder of the jingles.
    std::string chemin_musique;       ///< Where the dialogs for sound files begin.
    std::string chemin_editeur_audio; ///< "X" for none.
    std::string nom_radio;
    std::string type_affichage;

    Integer forcer_mix_jingles;    ///< Overlap of a short item, seconds.
    Integer mix_audio;             ///< Life of the outgoing deck after a fade has begun, seconds.
    Integer mix_audio_vitesse;     ///< Interval of the fade, milliseconds.
    Integer mix_audio_attenuation; ///< Slider steps by which a special mix lowers the main deck.
    Integer valeur_max_jingles;    ///< A mix point up to here makes a short item, seconds.
    Integer mix_courant;           ///< Overlap in force, seconds.
    Integer mix_defaut;            ///< Overlap of a normal track, seconds.
    Integer prechargement;         ///< Load lead in force before the mix point, seconds.
    Integer prechargement_defaut;
    Integer veille_antenne = 5;   ///< Seconds of silence after which a list that a fault stopped is taken up; 0: never.
    Integer valeur_vitesse_timer; ///< Interval of the chain's timers, milliseconds.

    std::string logo_fond;    ///< Picture of the main window.
    std::string logo_liste;   ///< Picture of the list window, or "Vrai" or "non" for none.
    std::string logo_fichier; ///< Picture of the file manager.
    std::string logo;         ///< Picture of the list window's menu.
    std::string banniere;
    std::string effet_visuel;      ///< "Oui" or "Non".
    std::string programme_aide;    ///< The operator's own program for the help; empty for the desktop's reader.
    std::string programme_journal; ///< The same for the journal.
    std::string load_combo1;       ///< Lists of the quick load boxes.
    std::string load_combo2;

    Flag valide_fichier_aleatoire; ///< Jingles are inserted by draw.
    Integer nb_fichier_aleatoire;
    std::string chemin_fichier_aleatoire;
    Flag valide_fichier_aleatoire1; ///< List items are inserted by draw.
    Integer nb_fichier_aleatoire1;
    std::string chemin_fichier_aleatoire1;
    Integer ecart_artiste; ///< Starts within which random order plays no artist twice; 0: it doesn't look.

    Integer position_haut; ///< Places of the windows, in twips.
    Integer position_gauche;
    Integer position_haut_liste;
    Integer position_gauche_liste;
    Integer position_haut_mini_lecteur;
    Integer position_gauche_mini_lecteur;

    Colour coul_texte_liste = 0;
    Colour coul_label = 0;
    Colour coul_text_bouton = 0;
    Colour coul_fond_liste = 0;
    Colour coul_fenetre = 0;
    Colour coul_bouton = 0;
    std::string coul_bouton_groupe_lecture;

    Flag premier_lancement; ///< The store was empty or damaged: this run writes it and ends.
};

} // namespace sonarelle
