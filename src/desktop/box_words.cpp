#include "desktop/box_words.h"

#include <algorithm>
#include <array>

namespace sonarelle {

namespace {

struct Row {
    const char* part_of_text;
    const char* yes;
    const char* no;
    bool destroys = false;
    bool ends_the_air = false;
};

constexpr std::array rows{
    Row{.part_of_text = "Confirmer la fermeture", .yes = "quitter", .no = "rester", .ends_the_air = true},
    Row{.part_of_text = "Couper le lecteur", .yes = "couper", .no = "laisser jouer", .destroys = true},
    Row{.part_of_text = "va ètre écrasé", .yes = "écraser", .no = "garder le fichier", .destroys = true},
    Row{.part_of_text = "Tous les réglages reviennent", .yes = "purger", .no = "garder mes réglages", .destroys = true},
    Row{.part_of_text = "L'ouvrir quand mème", .yes = "ouvrir", .no = "ne pas ouvrir"},
    Row{.part_of_text = "Sauvegarder la liste", .yes = "sauvegarder", .no = "ne pas sauvegarder"},
    Row{.part_of_text = "Elément supprimé de la liste", .yes = "continuer", .no = "arrêter"},
    Row{.part_of_text = "toute la liste\nContinuez", .yes = "modifier la liste", .no = "ne rien changer"},
};

} // namespace

BoxWords words_of_question(const QString& text) {
    const auto found =
        std::ranges::find_if(rows, [&](const Row& row) { return text.contains(QString::fromUtf8(row.part_of_text)); });
    if (found == rows.end())
        return {.yes = "Oui", .no = "Non"};
    return {.yes = QStringLiteral("Oui, ") + found->yes,
            .no = QStringLiteral("Non, ") + found->no,
            .destroys = found->destroys,
            .ends_the_air = found->ends_the_air};
}

} // namespace sonarelle
