#include "playout/option_menu.h"

#include <array>

#include "platform/dialogs.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

constexpr std::string_view nameless = "Antenne_FM";

struct PathEditor {
    std::string_view key, caption, title;
    std::string StationSettings::*variable;
    MenuItem MainMenus::*entry;
};

const PathEditor& editor_of(StationPath which) {
    static constexpr std::array editors{
        PathEditor{"Chemin_dossier_jingles", "Définir le chemin des jingles : ", "Définir chemin des jingles",
                   &StationSettings::chemin_jingles, &MainMenus::A_def_jingles},
        PathEditor{"Chemin_dernier_fichier", "Définir le chemin du dossier Musique :",
                   "Définir chemin du dossier Musique", &StationSettings::chemin_musique, &MainMenus::A_def_musique},
        PathEditor{"Chemin_editeur_audio",
                   "Définir le chemin de l'editeur audio :", "Définir chemin de l'editeur audio",
                   &StationSettings::chemin_editeur_audio, &MainMenus::a_editeur_audio},
    };
    return editors[static_cast<std::size_t>(which)];
}

} // namespace

void OptionMenu::nom_radio_Click() {
    std::string& name = desk_.settings.nom_radio;
    const std::string preset = name.empty() ? std::string{nameless} : name;
    const auto entered = desk_.platform.dialogs.InputBox({" Nom de votre Radio ", "Saisie d'un nouveau nom", preset});
    if (!entered)
        return;
    name = entered->empty() ? nameless : *entered;
    desk_.remember("Nom_antenne_fm", name);
    desk_.window.caption = name;
    desk_.window.Quitter_.caption = "Quitter " + name + " (Q)";
    desk_.list_window.caption = name;
    quick_load_.active_text_combo();
}

void OptionMenu::show_station_name() {
    const std::string& name = desk_.settings.nom_radio;
    if (!name.empty() && name != application_title) {
        desk_.window.caption = name;
        desk_.small_player.caption = name;
        desk_.list_window.caption = name;
        return;
    }
    const std::string title = std::string{application_title} + " V " + version_text();
    desk_.window.caption = title + " - " + std::string{application_version.company};
    desk_.list_window.caption = title;
}

void OptionMenu::define(StationPath which) {
    display_.Affiche_Fenetre_P_Click();
    if (open_chooser)
        return open_chooser(which);
    const PathEditor& editor = editor_of(which);
    store_path(which,
               desk_.platform.dialogs
                   .InputBox({std::string{editor.caption}, std::string{editor.title}, desk_.settings.*editor.variable})
                   .value_or(""));
}

void OptionMenu::store_path(StationPath which, const std::string& path) {
    const std::string trimmed{trim(path)};
    if (trimmed.empty())
        return;
    const PathEditor& editor = editor_of(which);
    desk_.settings.*editor.variable = trimmed;
    (desk_.window.*editor.entry).caption = std::string{editor.caption} + trimmed;
    desk_.remember(editor.key, trimmed);
}

void OptionMenu::Modifie_banniere_Click() {
    const ChosenFile chosen = desk_.platform.dialogs.open_file(
        {"Ouvrir une nouvelle banniere", desk_.settings.chemin_programme, "", " fichier (*.swf)|*.swf"});
    if (chosen.cancelled || chosen.file_name.empty())
        return;
    desk_.settings.banniere = chosen.file_name;
    A_Rafraichir_Click();
    desk_.remember("banniere", chosen.file_name);
}

void OptionMenu::A_Rafraichir_Click() {
    desk_.window.banner.movie = desk_.settings.banniere;
    desk_.window.banner.loop = true;
    desk_.window.banner.Play();
}

} // namespace sonarelle
