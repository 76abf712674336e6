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
    Convertion.hang({{&A_Copen_rfm, &A_Convertir_dfm}});
    play_list.hint = "lecture liste";
    zap.hint = "Zapper rapidement sur le fichier suvant (Z)";
    stop_decks.hint = "Stopper tous les lecteurs";
    for (MenuItem* entry : entries_that_need_a_list())
        entry->enabled = false;
}

std::array<MenuItem*, 9> Liste_son::entries_that_need_a_list() {
    return {&a_mettre_a_jour, &a_mettre_a_jour_liste, &prechar_fich, &prechar,        &Modifier_lettre_lecteur,
            &a_debutpiste,    &A_Debut_piste,         &a_modif,      &Modifier_volume};
}

} // namespace sonarelle
