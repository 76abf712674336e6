#include "playlist/liste_son.h"

namespace sonarelle {

namespace {

std::vector<Column> list_columns() {
    return {{"Chemin complet du fichier ", Twips{6700}},
            {"Début lecture a : (Secondes)", Twips{2500}},
            {"Fin lecture a : (Secondes)", Twips{2500}},
            {"Genre", Twips{1300}},
            {"Volume %", Twips{1000}},
            {"Durée piste", Twips{1100}}};
}

} // namespace

Liste_son::Liste_son()
    : Window{"Liste_son"},
      rows{*this, "ListView1", list_columns()} {
    file_name.visible = false;
    A_sauve.checked = true;
    modifier_chemin_non.checked = true;
    coller.enabled = false;
    A_conserver.enabled = false;
    for (MenuItem* entry : {&logofond, &logo_, &logo_liste, &A_coul_fond_liste, &logo_menu_fichier, &a_coul_bouton,
                            &A_coul_text_bouton, &a_coul_bouton_groupe_lecture})
        entry->visible = false;
    hang_menus();
    mark_entries(&MenuItem::opens_box,
                 {&A_liste, &A_Charge, &creer_aleatoire, &A_precoute, &A_ecoute_option, &A_enreg_sous, &A_Copen_rfm,
                  &A_Convertir_dfm, &Supprimer_fichier, &Modifier_lettre_lecteur, &Modifier_volume, &a_debutpiste,
                  &a_debutpiste_fichier, &a_modif});
    mark_entries(&MenuItem::opens_box, {&ajout_fich, &ajout_fichs, &ajout_jingl, &A_conserver, &A_recherche,
                                        &a_coul_label, &A_coul_texte_liste});
    mark_entries(&MenuItem::is_one_of_many, {&A_sauve, &a_Ne_pas_Sauve, &modifier_chemin, &modifier_chemin_non,
                                             &inser_avant, &inser_apres, &inser_fin});
    mark_entries(&MenuItem::destroys, {&Supprimer_fichier});
    jingles_status.hint = "Insertion Jingle On / Off";
    jingles_switch.hint = "Insertion Jingle On / Off";
    play_list.hint = "lecture liste";
    zap.hint = "Zapper rapidement sur le fichier suvant (Z)";
    stop_decks.hint = "Stopper tous les lecteurs";
    show_main_window.hint = "Fenètre principale";
    look.hint = "Look";
    help.hint = "Aide";
    search_label.hint = "Sauvegarder la recherche";
    display_label.hint = "Affichage";
    zap_status.hint = "Info Zapping & Option ";
    list_status.hint = "Click afficher uniquement la liste";
    for (MenuItem* entry : entries_that_need_a_list())
        entry->enabled = false;
}

void Liste_son::hang_menus() {
    Load_Pl.hang({{&A_ecoute, &char1, &char2, &char3},
                  {&Couper_, &copier_, &coller, &supprime},
                  {&a_modif, &of_row, &of_list, &of_file, &of_insertion},
                  {&lect_liste, &A_a_zapping, &A_precoute, &A_ecoute_option},
                  {&of_look}});
    of_row.hang({{&a_mettre_a_jour, &prechar_fich}, {&a_debutpiste_fichier, &a_modifie_morceau}});
    of_list.hang({{&a_mettre_a_jour_liste, &prechar},
                  {&Modifier_lettre_lecteur, &a_debutpiste, &Modifier_volume},
                  {&modifier_chemin, &modifier_chemin_non}});
    of_file.hang({{&A_liste, &A_Charge, &A_liste_anciene, &creer_aleatoire, &A_enreg_sous},
                  {&A_sauve, &a_Ne_pas_Sauve},
                  {&Convertion},
                  {&Supprimer_fichier}});
    of_deletion.hang({{&supprime, &Effacer_liste}, {&Supprimer_fichier}});
    of_adding.hang({{&ajout_fich, &ajout_fichs, &ajout_jingl, &ajout_fich_reseau},
                    {&A_recherche, &A_conserver},
                    {&find_next, &find_previous}});
    of_insertion.hang({{&inser_avant, &inser_apres, &inser_fin}});
    of_look.hang(
        {{&a_coul_label, &A_coul_texte_liste, &A_coul_fenètre, &logofond, &logo_, &logo_liste, &A_coul_fond_liste,
          &logo_menu_fichier, &a_coul_bouton, &A_coul_text_bouton, &a_coul_bouton_groupe_lecture},
         {&T_Printemps, &T_Eté, &T_Autonne, &T_Hiver, &T_Nuit},
         {&dock_list, &free_list},
         {&A_revenir_couleur}});
    Convertion.hang({{&A_Copen_rfm, &A_Convertir_dfm}});
}

std::array<MenuItem*, 9> Liste_son::entries_that_need_a_list() {
    return {&a_mettre_a_jour, &a_mettre_a_jour_liste, &prechar_fich, &prechar,        &Modifier_lettre_lecteur,
            &a_debutpiste,    &A_Debut_piste,         &a_modif,      &Modifier_volume};
}

} // namespace sonarelle
