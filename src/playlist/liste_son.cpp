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
    hang_menus();
    mark_entries(&MenuItem::opens_box,
                 {&A_liste, &A_Charge, &creer_aleatoire, &A_precoute, &A_ecoute_option, &A_enreg_sous, &A_Copen_rfm,
                  &A_Convertir_dfm, &Supprimer_fichier, &Modifier_lettre_lecteur, &Modifier_volume, &a_debutpiste,
                  &a_debutpiste_fichier, &a_modif});
    mark_entries(&MenuItem::is_one_of_many, {&A_sauve, &a_Ne_pas_Sauve, &modifier_chemin, &modifier_chemin_non});
    mark_entries(&MenuItem::destroys, {&Supprimer_fichier});
    jingles_status.hint = "Insertion Jingle On / Off";
    jingles_switch.hint = "Insertion Jingle On / Off";
    play_list.hint = "lecture liste";
    zap.hint = "Zapper rapidement sur le fichier suvant (Z)";
    stop_decks.hint = "Stopper tous les lecteurs";
    for (MenuItem* entry : entries_that_need_a_list())
        entry->enabled = false;
}

void Liste_son::hang_menus() {
    Load_Pl.hang({{&A_ecoute, &char1, &char2, &char3},
                  {&coller},
                  {&a_modif, &of_row, &of_list, &of_file},
                  {&lect_liste, &A_a_zapping, &A_precoute},
                  {&A_ecoute_option},
                  {&A_revenir_couleur}});
    of_row.hang({{&a_mettre_a_jour, &prechar_fich}, {&a_debutpiste_fichier, &a_modifie_morceau}});
    of_list.hang({{&a_mettre_a_jour_liste, &prechar},
                  {&Modifier_lettre_lecteur, &a_debutpiste, &Modifier_volume},
                  {&modifier_chemin, &modifier_chemin_non}});
    of_file.hang({{&A_liste, &A_Charge, &A_liste_anciene, &creer_aleatoire, &A_enreg_sous},
                  {&A_sauve, &a_Ne_pas_Sauve},
                  {&Convertion},
                  {&Supprimer_fichier}});
    Convertion.hang({{&A_Copen_rfm, &A_Convertir_dfm}});
}

std::array<MenuItem*, 9> Liste_son::entries_that_need_a_list() {
    return {&a_mettre_a_jour, &a_mettre_a_jour_liste, &prechar_fich, &prechar,        &Modifier_lettre_lecteur,
            &a_debutpiste,    &A_Debut_piste,         &a_modif,      &Modifier_volume};
}

} // namespace sonarelle
