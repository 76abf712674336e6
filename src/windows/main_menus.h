#pragma once

#include <array>

#include "platform/controls.h"

namespace sonarelle {

/// The menus of the main window. Seven of them stand in its bar, `affiche` and `Option_` open at the pointer too, and
/// `cha` and `char_F` belong to the quick load boxes.
struct MainMenus : Window {
    MainMenus();

    MenuItem Fichier{*this, "Fichier", "Fichier"};
    MenuItem ouvre_L{*this, "ouvre_L", "Ouvrir liste"};
    MenuItem A_gere{*this, "A_gere", "Gérer ou ouvrir les fichiers multimédia"};
    MenuItem ecoute{*this, "ecoute", "Ecoute rapide", "F4"};
    MenuItem a_assosiation{*this, "a_assosiation", "Associer des fichiers audio , vidéo ou liste a : "};
    MenuItem live_{*this, "live_", "Lecteur CD et carte son"};
    MenuItem A_lecteur_CD_Win{*this, "A_lecteur_CD_Win", "Lecteur CD Windows"};
    MenuItem A_Ouvrir_CD{*this, "A_Ouvrir_CD", "Ouvrir tiroir CD"};
    MenuItem A_fermer_CD{*this, "A_fermer_CD", "Fermer tiroir CD"};
    MenuItem a_vol{*this, "a_vol", "Volume carte son"};
    MenuItem A_journal{*this, "A_journal", "Journal"};
    MenuItem Active_journal1{*this, "Active_journal1", "Activer et ne pas conserver"};
    MenuItem Active_journal{*this, "Active_journal", "Activer  conserver"};
    MenuItem A_desacive_J{*this, "A_desacive_J", "Désactiver"};
    MenuItem A_purger_journal{*this, "A_purger_journal", "Purger"};
    MenuItem A_ouvre_journal{*this, "A_ouvre_journal", "Ouvrir"};
    MenuItem Quitter_{*this, "Quitter_", "Quitter"};

    MenuItem lire_play{*this, "lire_play", "Play"};
    MenuItem lire_1{*this, "lire_1", "Play 1", "F5"};
    MenuItem lire_2{*this, "lire_2", "Play 2", "F6"};
    MenuItem lire_3{*this, "lire_3", "Play 3", "F7"};
    MenuItem Mix1{*this, "Mix1", "Mix 1", "F8"};
    MenuItem Mix2{*this, "Mix2", "Mix 2", "F9"};
    MenuItem Mix3{*this, "Mix3", "Mix 3", "F11"};
    MenuItem A_décharge_1{*this, "A_décharge_1", "Décharger Play 1"};
    MenuItem A_décharge_2{*this, "A_décharge_2", "Décharger Play 2"};
    MenuItem A_décharge_3{*this, "A_décharge_3", "Décharger Play 3"};
    MenuItem Active_audio_jingles{*this, "Active_audio_jingles",
                                  "Activer dégradé audio uniquement en mode enchainement auto"};
    MenuItem Active_audio{*this, "Active_audio", "Activer dégradé audio (liste)", "Ctrl+Y"};
    MenuItem Active_audio_zapping{*this, "Active_audio_zapping", "Activer dégradé audio sur zapping", "Ctrl+Z"};
    MenuItem Désactive_audio{*this, "Désactive_audio", "Désactiver dégradé audio"};

    MenuItem liste{*this, "liste", "Liste"};
    MenuItem ouvrir_liste{*this, "ouvrir_liste", "Ouvrir fenètre liste", "F2"};
    MenuItem a_mode_manuel{*this, "a_mode_manuel", "Mode enchainement manuel"};
    MenuItem a_mode_auto{*this, "a_mode_auto", "Mode enchainement auto lecteur"};
    MenuItem a_mode_predefini{*this, "a_mode_predefini", "Mode enchainement auto liste"};
    MenuItem A_ordre_continue{*this, "A_ordre_continue", "Lecture continue"};
    MenuItem A_ordre_aléatoire{*this, "A_ordre_aléatoire", "Lecture aléatoire"};
    MenuItem choose_favourites{*this, "choose_favourites", "Choisir la liste des favoris"};
    MenuItem choose_jingles{*this, "choose_jingles", "Choisir la liste des jingles"};

    MenuItem affiche{*this, "affiche", "Affichage"};
    MenuItem Affiche_Fenetre_P{*this, "Affiche_Fenetre_P", "Uniquement fenètre principale"};
    MenuItem Affiche_Fenetre_L{*this, "Affiche_Fenetre_L", "Uniquement fenètre liste"};
    MenuItem affiche_tout{*this, "affiche_tout", "Afficher tout"};
    MenuItem Affiche_barre{*this, "Affiche_barre", "Réduire dans Barre de tache "};
    MenuItem affiche_toujour{*this, "affiche_toujour", "Afficher toujours la fenètre principale"};
    MenuItem a_mini{*this, "a_mini", "Mini lecteur (m)"};
    MenuItem A_centre_lecteur{*this, "A_centre_lecteur", "Centrer lecteur"};
    MenuItem A_centre_lecteur_haut{*this, "A_centre_lecteur_haut", "Centrer lecteur Haut écran"};
    MenuItem a_droite_haut{*this, "a_droite_haut", "Lecteur a droite Haut écran"};
    MenuItem a_gauche_haut{*this, "a_gauche_haut", "Lecteur a gauche Haut écran"};
    MenuItem Aligner_liste{*this, "Aligner_liste", "Aligner fenètre liste"};
    MenuItem liste_pleine_largeur{*this, "liste_pleine_largeur", "Fenètre liste pleine largeur"};
    MenuItem Afficher_C_aleatoire{*this, "Afficher_C_aleatoire", "Afficher fenètre de controle "};
    MenuItem a_Curseur_volume{*this, "a_Curseur_volume", "Curseur volume"};
    MenuItem aa_montrer_curseur{*this, "aa_montrer_curseur", "Montrer les curseurs"};
    MenuItem aa_cacher_curseur{*this, "aa_cacher_curseur", "Cacher les curseurs"};
    MenuItem visual_effect{*this, "visual_effect", "Effet visuel"};
    MenuItem A_visuel_active{*this, "A_visuel_active", "Activer les effets"};
    MenuItem A_visuel_desactive{*this, "A_visuel_desactive", "Désactiver les effets"};
    MenuItem A_affichage1{*this, "A_affichage1", "Oscilloscope"};
    MenuItem A_affichage2{*this, "A_affichage2", "Spectrum"};
    MenuItem A_Rafraichir{*this, "A_Rafraichir", "Rafraichir l'affichage de la bannière"};

    MenuItem Option_{*this, "Option_", "Option"};
    MenuItem pre_char{*this, "pre_char", "Paramètres"};
    MenuItem nom_radio{*this, "nom_radio", "Nom de votre radio :"};
    MenuItem A_def_jingles{*this, "A_def_jingles", "Définir le chemin des jingles : "};
    MenuItem A_def_musique{*this, "A_def_musique", "Définir le chemin du dossier Musique :"};
    MenuItem a_editeur_audio{*this, "a_editeur_audio", "Définir le chemin de l'editeur audio :"};
    MenuItem Modifie_banniere{*this, "Modifie_banniere", "Modifier la banniere (475*40)"};
    MenuItem A_glisser_déplacer{*this, "A_glisser_déplacer", "Autoriser sur la liste, le glisser / déplacer"};
    MenuItem Supprimer_recherche{*this, "Supprimer_recherche", "Supprimer les entrées recherche liste"};
    MenuItem A_purger_registre{*this, "A_purger_registre", "Purger la base de registre de la version précédente"};

    MenuItem aide{*this, "aide", "Aide"};
    MenuItem aideprog{*this, "aideprog", "Aide programme", "F1"};

    MenuItem A_Propos{*this, "A_Propos", "À propos"};
    MenuItem show_about{*this, "show_about", "À propos de "};
    MenuItem show_update_info{*this, "show_update_info", "Info mise a jour"};

    MenuItem cha{*this, "cha", "Charger liste"}; ///< Of the favourites.
    MenuItem lect1{*this, "lect1", "Sur lecteur 1"};
    MenuItem lect2{*this, "lect2", "Sur lecteur 2"};
    MenuItem lect3{*this, "lect3", "Sur lecteur 3"};
    MenuItem char_F{*this, "char_F", "Charger favoris"}; ///< Of the jingles.
    MenuItem lect1_F{*this, "lect1_F", "Sur lecteur 1"};
    MenuItem lect2_F{*this, "lect2_F", "Sur lecteur 2"};
    MenuItem lect3_F{*this, "lect3_F", "Sur lecteur 3"};

    /// The fade rules, of which one is checked.
    [[nodiscard]] std::array<MenuItem*, 4> fade_rules() {
        return {&Active_audio_jingles, &Active_audio, &Active_audio_zapping, &Désactive_audio};
    }
    /// The visual effect and its two pictures.
    [[nodiscard]] std::array<MenuItem*, 4> effect_entries() {
        return {&A_visuel_active, &A_visuel_desactive, &A_affichage1, &A_affichage2};
    }
    /// Play, special mix and unload of the decks, by deck.
    [[nodiscard]] std::array<MenuItem*, 3> play_entries() { return {&lire_1, &lire_2, &lire_3}; }
    [[nodiscard]] std::array<MenuItem*, 3> special_mix_entries() { return {&Mix1, &Mix2, &Mix3}; }
    [[nodiscard]] std::array<MenuItem*, 3> unload_entries() { return {&A_décharge_1, &A_décharge_2, &A_décharge_3}; }
    /// The loads of the quick load boxes, by deck.
    [[nodiscard]] std::array<MenuItem*, 3> favourite_loads() { return {&lect1, &lect2, &lect3}; }
    [[nodiscard]] std::array<MenuItem*, 3> jingle_loads() { return {&lect1_F, &lect2_F, &lect3_F}; }
    [[nodiscard]] std::array<MenuItem*, 3> chain_modes() { return {&a_mode_manuel, &a_mode_auto, &a_mode_predefini}; }
    [[nodiscard]] std::array<MenuItem*, 3> journal_choices() {
        return {&Active_journal1, &Active_journal, &A_desacive_J};
    }
    /// Which windows are on view: one at most is checked.
    [[nodiscard]] std::array<MenuItem*, 5> views() {
        return {&Affiche_Fenetre_P, &Affiche_Fenetre_L, &affiche_tout, &Affiche_barre, &affiche_toujour};
    }

private:
    void hang_menus();
    void mark_menus();
};

/// Checks one entry of an exclusive group of a menu and clears the others.
template <std::size_t Count>
void check_only(const std::array<MenuItem*, Count>& group, const MenuItem& chosen) {
    for (MenuItem* entry : group)
        entry->checked = entry == &chosen;
}

} // namespace sonarelle
