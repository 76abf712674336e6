#include "configuration/settings_load.h"

#include <array>

#include "platform/paths.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

constexpr auto& config = setting_section::config;

bool is_set_and_clear(ErrorIndicator& errors) {
    const bool set = errors.is_set();
    errors.clear();
    return set;
}

std::string caption_with_path(std::string_view caption, const std::string& path) {
    return std::string{caption} + path;
}

} // namespace

struct SettingsLoad::Insertion {
    std::string_view flag_key, count_key, list_key, on_caption;
    Flag StationSettings::*flag;
    CheckBox Form_options::*box;
    TextBox Form_options::*count_box;
    TextBox Form_options::*list_box;
    Timer Antenne_FM::*timer;
    Label Liste_son::*label;
    Image Liste_son::*button;
};

SettingsLoad::SettingsLoad(const Platform& platform, StationSettings& settings, Antenne_FM& main_window,
                           Liste_son& list_window, Form_options& options, mini_lecteur& small_player)
    : platform_{platform},
      store_{platform},
      settings_{settings},
      main_{main_window},
      list_{list_window},
      options_{options},
      small_player_{small_player} {}

void SettingsLoad::Chargement_parametres() {
    static constexpr std::array insertions{
        Insertion{"valide_fichier_aleatoire", "Nb_fichier_aleatoire", "Chemin_fichier_aleatoire", "Jingle On",
                  &StationSettings::valide_fichier_aleatoire, &Form_options::draws_jingles,
                  &Form_options::jingle_spacing, &Form_options::jingle_list, &Antenne_FM::jingle_timer,
                  &Liste_son::jingles_status, &Liste_son::jingles_switch},
        Insertion{"valide_fichier_aleatoire1", "Nb_fichier_aleatoire1", "Chemin_fichier_aleatoire1", "Liste On",
                  &StationSettings::valide_fichier_aleatoire1, &Form_options::draws_items, &Form_options::item_spacing,
                  &Form_options::item_list, &Antenne_FM::item_timer, &Liste_son::items_status,
                  &Liste_son::items_switch},
    };
    write_program_folder();
    read_chain_values();
    read_positions();
    read_texts();
    make_options_dialog();
    for (const Insertion& insertion : insertions)
        read_insertion(insertion);
    repair_if_damaged();
    convert_kept_texts();
    show_paths();
    show_effects();
    show_cursors();
    show_name();
    place_windows();
    read_colours();
    if (apply_colours)
        apply_colours();
    place_small_player();
}

void SettingsLoad::write_program_folder() {
    settings_.chemin_programme = with_backslash(platform_.program_folder);
    errors_.skip([this] { store_.write(config, "Chemin_programme", settings_.chemin_programme); });
}

/// An empty text takes the row's value for it; the variable takes what the text converts to.
std::string SettingsLoad::read_chain_value(std::string_view key) {
    const SettingRow& row = setting_row(config, key);
    std::string text;
    errors_.skip([&] { text = store_.read(config, key); });
    if (text.empty())
        text = row.load.value_or("");
    errors_.skip([&] { store_.assign(settings_, row, text); });
    return text;
}

void SettingsLoad::read_chain_values() {
    kept_.forcer_mix_jingles = read_chain_value("Forcer_Mix_Jingles");
    kept_.mix_audio = read_chain_value("Mix_audio");
    kept_.mix_audio_vitesse = read_chain_value("Mix_audio_vitesse");
    kept_.mix_audio_attenuation = read_chain_value("Mix_audio_attenuation");
    read_chain_value("valeur_max_jingles");
    read_chain_value("Veille_antenne");
    read_chain_value("Ecart_artiste");
}

void SettingsLoad::read_positions() {
    for (const SettingRow& row : settings_vocabulary())
        if (row.section == setting_section::position)
            errors_.skip([&] { store_.assign(settings_, row, store_.read(row.section, row.key)); });
}

void SettingsLoad::read_texts() {
    const auto read = [this](std::string_view key, std::string& into) {
        errors_.skip([&] { into = store_.read(config, key); });
    };
    read("Mix", kept_.mix);
    read("Nom_antenne_fm", settings_.nom_radio);
    read("Load_combo1", settings_.load_combo1);
    read("Load_combo2", settings_.load_combo2);
    read("Préchargement", kept_.prechargement);
    read("Valeur_vitesse_timer", kept_.valeur_vitesse_timer);
    read("logo", settings_.logo);
    read("logo_fond", settings_.logo_fond);
    read("logo_liste", settings_.logo_liste);
    read("logo_fichier", settings_.logo_fichier);
    read("banniere", settings_.banniere);
    read("Effet visuel", settings_.effet_visuel);
    read("Montrer curseur", kept_.montrer_curseur);
    read("type_affichage", settings_.type_affichage);
    read("Chemin_dossier_jingles", settings_.chemin_jingles);
    read("Chemin_dernier_fichier", settings_.chemin_musique);
    read("Chemin_editeur_audio", settings_.chemin_editeur_audio);
    read("Programme_aide", settings_.programme_aide);
    read("Programme_journal", settings_.programme_journal);
    read("Chemin_programme", settings_.chemin_programme);
    // A store that couldn't be written has no folder to give; the files beside the program are needed all the same.
    if (settings_.chemin_programme.empty())
        settings_.chemin_programme = with_backslash(platform_.program_folder);
}

// The options dialog is made here, on its first use. Making a window forgets the failures before it, so a damaged
// number up to this point counts as missing and not as a damaged store.
void SettingsLoad::make_options_dialog() {
    errors_.clear();
    options_.longest_jingle.set_text(text_of(settings_.valeur_max_jingles));
}

void SettingsLoad::read_insertion(const Insertion& insertion) {
    std::string flag;
    errors_.skip([&] { flag = store_.read(config, insertion.flag_key); });
    if (flag == "true") {
        (options_.*insertion.box).enabled = true;
        (options_.*insertion.box).set_value(1);
        (main_.*insertion.timer).enable();
        settings_.*insertion.flag = true;
        (list_.*insertion.label).caption = std::string{insertion.on_caption};
        (list_.*insertion.button).picture = settings_.chemin_programme + "bouton_on.jpg";
    } else if (flag == "false") {
        (main_.*insertion.timer).disable();
    }
    const SettingRow& count = setting_row(config, insertion.count_key);
    const SettingRow& path = setting_row(config, insertion.list_key);
    errors_.skip([&] {
        store_.assign(settings_, count, store_.read(config, insertion.count_key));
        (options_.*insertion.count_box).set_text(store_.read(config, insertion.count_key));
    });
    errors_.skip([&] {
        store_.assign(settings_, path, store_.read(config, insertion.list_key));
        (options_.*insertion.list_box).set_text(store_.read(config, insertion.list_key));
    });
}

void SettingsLoad::repair_if_damaged() {
    if (!is_set_and_clear(errors_))
        return;
    errors_.skip([this] { store_.write_column(&SettingRow::repair, config); });
    errors_.skip([this] { store_.write_column(&SettingRow::repair, setting_section::position); });
    const auto repaired = [](std::string_view key) { return std::string{*setting_row(config, key).repair}; };
    kept_.forcer_mix_jingles = repaired("Forcer_Mix_Jingles");
    kept_.mix_audio = repaired("Mix_audio");
    kept_.mix_audio_vitesse = repaired("Mix_audio_vitesse");
    kept_.mix_audio_attenuation = repaired("Mix_audio_attenuation");
    kept_.mix = repaired("Mix");
    settings_.mix_audio_attenuation = 3;
    settings_.prechargement = settings_.prechargement_defaut = 7;
    settings_.effet_visuel = "Non";
    settings_.chemin_editeur_audio = "X";
    settings_.type_affichage = "T_défaut";
    settings_.chemin_musique = settings_.chemin_programme;
    settings_.premier_lancement = true;
}

void SettingsLoad::convert_kept_texts() {
    const auto convert = [this](const std::string& text, Integer& into, TextBox* box = nullptr) {
        errors_.skip([&] { into = to_integer(text, platform_.decimal_mark); });
        if (box != nullptr)
            box->set_text(text_of(into));
    };
    convert(kept_.mix_audio_vitesse, settings_.mix_audio_vitesse, &options_.fade_interval);
    convert(kept_.mix_audio, settings_.mix_audio, &options_.outgoing_life);
    convert(kept_.forcer_mix_jingles, settings_.forcer_mix_jingles, &options_.short_overlap);
    convert(kept_.mix_audio_attenuation, settings_.mix_audio_attenuation, &options_.special_mix_steps);
    convert(kept_.mix, settings_.mix_courant, &options_.overlap);
    convert(kept_.prechargement, settings_.prechargement, &options_.load_lead);
    convert(kept_.prechargement, settings_.prechargement_defaut);
    convert(kept_.valeur_vitesse_timer, settings_.valeur_vitesse_timer, &options_.chain_interval);
    convert(kept_.mix, settings_.mix_defaut);
    main_.overlap.set_text(kept_.mix);
    main_.overlap_steps.show_value(settings_.mix_courant.value());
}

void SettingsLoad::show_paths() {
    main_.A_def_jingles.caption = caption_with_path("Définir le chemin des jingles : ", settings_.chemin_jingles);
    main_.A_def_musique.caption = caption_with_path("Définir le chemin du dossier Musique :", settings_.chemin_musique);
    main_.a_editeur_audio.caption =
        caption_with_path("Définir le chemin de l'editeur audio :", settings_.chemin_editeur_audio);
}

void SettingsLoad::show_effects() {
    const bool active = settings_.effet_visuel == "Oui";
    main_.A_visuel_active.checked = active;
    main_.A_visuel_desactive.checked = !active;
}

void SettingsLoad::show_cursors() {
    main_.show_sliders(kept_.montrer_curseur == "Oui");
}

void SettingsLoad::show_name() {
    main_.Quitter_.caption = "Quitter " + settings_.nom_radio + " (Q)";
}

void SettingsLoad::place_windows() {
    main_.top = Twips{settings_.position_haut.value()};
    main_.left = Twips{settings_.position_gauche.value()};
    list_.top = Twips{settings_.position_haut_liste.value()};
    list_.left = Twips{settings_.position_gauche_liste.value()};
}

void SettingsLoad::read_colours() {
    for (const SettingRow& row : settings_vocabulary())
        if (row.section == setting_section::colours &&
            std::holds_alternative<Colour StationSettings::*>(row.variable) && row.form == SettingForm::colour)
            errors_.skip([&] { store_.assign(settings_, row, store_.read(row.section, row.key)); });
    if (!is_set_and_clear(errors_))
        return;
    errors_.skip([this] { store_.write_column(&SettingRow::repair, setting_section::colours); });
    store_.assign_column(settings_, &SettingRow::repair, setting_section::colours);
}

void SettingsLoad::place_small_player() {
    small_player_.top = Twips{settings_.position_haut_mini_lecteur.value()};
    small_player_.left = Twips{settings_.position_gauche_mini_lecteur.value()};
}

} // namespace sonarelle
