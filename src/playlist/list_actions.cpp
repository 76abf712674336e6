#include "playlist/list_actions.h"

#include <algorithm>
#include <array>

namespace sonarelle {

namespace {

using enum ListAction;

constexpr std::string_view start_prompt = "Démarrer la lecture a :\n"
                                          "Entrez la nouvelle valeur pour cette session\n"
                                          "voir parametre régionaux si erreur Type incompatible\n"
                                          "Remplacer la virgule par un point dans séparation des décimales\n"
                                          "\n"
                                          "Exemple en secondes (minimun)\n"
                                          "0.10";

// What ends in a save of the default list is refused where that isn't wanted; what reads records needs a list that has
// them.
constexpr std::array rows{
    ListActionRow{.action = prechar, .needs_saving = true, .needs_dfm = true},
    ListActionRow{.action = prechar_fich, .needs_saving = true, .needs_dfm = true},
    ListActionRow{.action = Modifier_lettre_lecteur,
                  .needs_saving = true,
                  .needs_dfm = true,
                  .question =
                      "Aprés la copie de vos fichiers sur un autre disque\n"
                      "Vous avez la possibilité de modifier uniquement la lettre du lecteur\n"
                      "Cette option est utilisé que dans la mesure ou les dossiers se trouvent au méme emplacement !\n"
                      "Le niveau du son va etre également réinitialisé.\n"
                      "Attention cette action sera appliqué sur toute la liste\n"
                      "Continuez ?",
                  .input_title = " Modification de la lettre du disque (nom du volume) ",
                  .input_prompt = "Cette action sera appliqué sur toute la liste",
                  .input_preset = "c",
                  .tells_first_row = true},
    ListActionRow{.action = Modifier_volume,
                  .needs_saving = true,
                  .needs_dfm = true,
                  .question = "Cette action n'a aucune incidence sur les fichiers\n"
                              "Elle sera appliquée sur toute la liste\n"
                              "Continuez ?",
                  .input_title = " Modification du volume) ",
                  .input_prompt = "Cette action sera appliqué sur toute la liste",
                  .input_preset = "90",
                  .tells_first_row = true},
    ListActionRow{.action = a_debutpiste,
                  .needs_saving = true,
                  .needs_dfm = true,
                  .input_title = "Lecture a :",
                  .input_prompt = start_prompt,
                  .input_preset = "0.10",
                  .caption_of_value = "Début piste de la liste a : "},
    ListActionRow{.action = a_debutpiste_fichier,
                  .needs_saving = true,
                  .needs_dfm = true,
                  .input_title = "Lecture a :",
                  .input_prompt = start_prompt,
                  .input_preset = "0.10",
                  .caption_of_value = "Début piste de ce fichier a : "},
    ListActionRow{.action = a_mettre_a_jour, .needs_saving = true, .needs_dfm = true},
    ListActionRow{.action = a_mettre_a_jour_liste, .needs_saving = true, .needs_dfm = true},
    ListActionRow{.action = a_modif, .needs_dfm = true},
    ListActionRow{.action = a_modifie_morceau, .needs_saving = true},
    ListActionRow{.action = load_on_liste, .needs_saving = true},
    ListActionRow{.action = copier_, .needs_saving = true, .tells_work = true},
    ListActionRow{.action = Couper_, .needs_saving = true, .tells_work = true},
    ListActionRow{.action = coller_, .needs_saving = true, .tells_work = true},
    ListActionRow{.action = drop_row, .needs_saving = true, .needs_dfm = true, .tells_work = true},
    ListActionRow{.action = drop_files, .needs_saving = true, .tells_work = true},
    ListActionRow{.action = sort_rows, .needs_saving = true, .tells_work = true},
};

} // namespace

const ListActionRow& list_action(ListAction action) {
    return *std::ranges::find(rows, action, &ListActionRow::action);
}

} // namespace sonarelle
