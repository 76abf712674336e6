#include "windows/main_menus.h"

namespace sonarelle {

MainMenus::MainMenus()
    : Window{"Antenne_FM"} {
    A_desacive_J.checked = true;
    A_affichage1.checked = true; // what the display shows until another is chosen
    hang_menus();
    mark_menus();
}

void MainMenus::hang_menus() {
    menu_bar = {&Fichier, &lire_play, &liste, &affiche, &Option_, &aide, &A_Propos};

    Fichier.hang({{&ouvre_L, &A_gere, &ecoute}, {&a_assosiation}, {&live_, &A_journal}, {&Quitter_}});
    live_.hang({{&A_lecteur_CD_Win, &A_Ouvrir_CD, &A_fermer_CD}, {&a_vol}});
    A_journal.hang({{&Active_journal1, &Active_journal, &A_desacive_J}, {&A_ouvre_journal}, {&A_purger_journal}});

    lire_play.hang({{&lire_1, &lire_2, &lire_3},
                    {&Mix1, &Mix2, &Mix3},
                    {&A_décharge_1, &A_décharge_2, &A_décharge_3},
                    {&Active_audio_jingles, &Active_audio, &Active_audio_zapping, &Désactive_audio}});

    liste.hang({{&ouvrir_liste},
                {&a_mode_manuel, &a_mode_auto, &a_mode_predefini},
                {&A_ordre_continue, &A_ordre_aléatoire},
                {&choose_favourites, &choose_jingles}});

    affiche.hang({{&Affiche_Fenetre_P, &Affiche_Fenetre_L, &affiche_tout, &Affiche_barre, &affiche_toujour},
                  {&a_mini},
                  {&A_centre_lecteur, &A_centre_lecteur_haut, &a_droite_haut, &a_gauche_haut},
                  {&Aligner_liste, &liste_pleine_largeur, &Afficher_C_aleatoire},
                  {&a_Curseur_volume, &visual_effect},
                  {&A_Rafraichir}});
    a_Curseur_volume.hang({{&aa_montrer_curseur, &aa_cacher_curseur}});
    visual_effect.hang({{&A_visuel_active, &A_visuel_desactive}, {&A_affichage1, &A_affichage2}});

    Option_.hang({{&pre_char},
                  {&nom_radio, &A_def_jingles, &A_def_musique, &a_editeur_audio, &Modifie_banniere},
                  {&A_glisser_déplacer},
                  {&Supprimer_recherche, &A_purger_registre}});

    aide.hang({{&aideprog}});
    A_Propos.hang({{&show_about, &show_update_info}});

    cha.hang({{&lect1, &lect2, &lect3}});
    char_F.hang({{&lect1_F, &lect2_F, &lect3_F}});
}

void MainMenus::mark_menus() {
    mark_entries(&MenuItem::opens_box,
                 {&ouvre_L, &A_gere, &ecoute, &a_assosiation, &A_ouvre_journal, &Quitter_, &choose_favourites,
                  &choose_jingles, &Afficher_C_aleatoire, &pre_char, &nom_radio, &A_def_jingles, &A_def_musique,
                  &a_editeur_audio, &Modifie_banniere, &A_purger_registre, &aideprog, &show_about, &show_update_info});
    mark_entries(&MenuItem::is_one_of_many,
                 {&A_ordre_continue, &A_ordre_aléatoire, &aa_montrer_curseur, &aa_cacher_curseur, &A_visuel_active,
                  &A_visuel_desactive, &A_affichage1, &A_affichage2});
    const auto exclude = [](const auto& group) {
        for (MenuItem* entry : group)
            entry->is_one_of_many = true;
    };
    exclude(fade_rules());
    exclude(chain_modes());
    exclude(journal_choices());
    exclude(views());
    mark_entries(&MenuItem::destroys, {&A_purger_journal, &Supprimer_recherche, &A_purger_registre});
}

} // namespace sonarelle
