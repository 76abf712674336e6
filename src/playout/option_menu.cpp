#include "playout/option_menu.h"

#include <array>

#include "configuration/settings_store.h"
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

void OptionMenu::ask_station_name() {
    std::string& name = settings_.nom_radio;
    const std::string preset = name.empty() ? std::string{nameless} : name;
    const auto entered = platform_.dialogs.InputBox({" Nom de votre Radio ", "Saisie d'un nouveau nom", preset});
    if (!entered)
        return;
    name = entered->empty() ? nameless : *entered;
    remember(platform_, "Nom_antenne_fm", name);
    desk_display_.station_renamed();
    quick_load_.active_text_combo();
}

void OptionMenu::show_station_name() {
    const std::string& name = settings_.nom_radio;
    if (!name.empty() && name != application_title)
        desk_display_.station_named();
    else
        desk_display_.station_nameless();
}

void OptionMenu::define(StationPath which) {
    display_.show_main_window_alone();
    if (open_chooser)
        return open_chooser(which);
    const PathEditor& editor = editor_of(which);
    store_path(
        which,
        platform_.dialogs.InputBox({std::string{editor.caption}, std::string{editor.title}, settings_.*editor.variable})
            .value_or(""));
}

void OptionMenu::store_path(StationPath which, const std::string& path) {
    const std::string trimmed{trim(path)};
    if (trimmed.empty())
        return;
    const PathEditor& editor = editor_of(which);
    settings_.*editor.variable = trimmed;
    (window_.*editor.entry).caption = std::string{editor.caption} + trimmed;
    remember(platform_, editor.key, trimmed);
}

void OptionMenu::choose_banner() {
    const ChosenFile chosen = platform_.dialogs.open_file(
        {"Ouvrir une nouvelle banniere", settings_.chemin_programme, "", " fichier (*.swf)|*.swf"});
    if (chosen.cancelled || chosen.file_name.empty())
        return;
    settings_.banniere = chosen.file_name;
    A_Rafraichir_Click();
    remember(platform_, "banniere", chosen.file_name);
}

void OptionMenu::A_Rafraichir_Click() {
    window_.banner.movie = settings_.banniere;
    window_.banner.loop = true;
    window_.banner.Play();
}

} // namespace sonarelle
