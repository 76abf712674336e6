#include "configuration/settings_vocabulary.h"

#include <algorithm>
#include <array>
#include <cassert>

#include "platform/paths.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

using Form = SettingForm;
using S = StationSettings;
using std::nullopt;
constexpr auto& config = setting_section::config;
constexpr auto& position = setting_section::position;
constexpr auto& colours = setting_section::colours;
constexpr std::monostate no_variable{};

// clang-format off
constexpr std::array vocabulary{
    //         section   key                              form            load     repair                   first                    back                     variable
    SettingRow{config,   "Chemin_programme",              Form::path,     nullopt, "{chemin}",              "{chemin}",              "{chemin}",              &S::chemin_programme},
    SettingRow{config,   "Forcer_Mix_Jingles",            Form::integer,  "1",     "1",                     "1",                     "1",                     &S::forcer_mix_jingles},
    SettingRow{config,   "Mix_audio",                     Form::integer,  "13",    "13",                    "10",                    "13",                    &S::mix_audio},
    SettingRow{config,   "Mix_audio_vitesse",             Form::integer,  "40",    "40",                    "35",                    "40",                    &S::mix_audio_vitesse},
    SettingRow{config,   "Mix_audio_attenuation",         Form::integer,  "3",     "3",                     "2",                     "3",                     &S::mix_audio_attenuation},
    SettingRow{config,   "valeur_max_jingles",            Form::integer,  "30",    "30",                    "30",                    nullopt,                 &S::valeur_max_jingles},
    SettingRow{config,   "Mix",                           Form::integer,  nullopt, "6",                     "6",                     "6",                     &S::mix_courant},
    SettingRow{config,   "Préchargement",                 Form::integer,  nullopt, "7",                     "7",                     "7",                     &S::prechargement},
    SettingRow{config,   "Valeur_vitesse_timer",          Form::integer,  nullopt, "1000",                  "1000",                  "1000",                  &S::valeur_vitesse_timer},
    SettingRow{config,   "Nom_antenne_fm",                Form::text,     nullopt, "Sonarelle",             "Sonarelle",             "Sonarelle",             &S::nom_radio},
    SettingRow{config,   "Chemin_dossier_jingles",        Form::path,     nullopt, "{dossier}",             "{dossier}",             "{dossier}",             &S::chemin_jingles},
    SettingRow{config,   "Chemin_dernier_fichier",        Form::path,     nullopt, "{dossier}",             "{dossier}",             "{dossier}",             &S::chemin_musique, "{chemin}"},
    SettingRow{config,   "Chemin_editeur_audio",          Form::path,     nullopt, nullopt,                 nullopt,                 nullopt,                 &S::chemin_editeur_audio, "X"},
    SettingRow{config,   "type_affichage",                Form::text,     nullopt, "T_défaut",              "T_défaut",              "T_défaut",              &S::type_affichage},
    SettingRow{config,   "logo_fond",                     Form::path,     nullopt, "{chemin}fond_noir1.jpg", "{chemin}fond_noir1.jpg", "{chemin}fond_noir1.jpg", &S::logo_fond},
    SettingRow{config,   "Logo_liste",                    Form::path,     nullopt, "{chemin}Liste_Sonarine1.jpg", "{chemin}Liste_Sonarine1.jpg", "{chemin}Liste_Sonarine1.jpg", &S::logo_liste},
    SettingRow{config,   "Logo_fichier",                  Form::path,     nullopt, "{chemin}Menu_fichier_noir.gif", "{chemin}Menu_fichier_noir.gif", "{chemin}Menu_fichier_noir.gif", &S::logo_fichier},
    SettingRow{config,   "logo",                          Form::path,     nullopt, "{chemin}Logo_liste1.gif", "{chemin}Logo_liste1.gif", "{chemin}Logo_liste1.gif", &S::logo},
    SettingRow{config,   "banniere",                      Form::path,     nullopt, "{chemin}bandeau.swf",   "{chemin}bandeau_Flash.swf", nullopt,               &S::banniere},
    SettingRow{config,   "Effet visuel",                  Form::flag,     nullopt, "Non",                   "Non",                   "Non",                   &S::effet_visuel},
    SettingRow{config,   "Montrer curseur",               Form::flag,     nullopt, "Non",                   "Non",                   "Non",                   no_variable},
    SettingRow{config,   "Load_combo1",                   Form::path,     nullopt, "",                      "",                      "",                      &S::load_combo1},
    SettingRow{config,   "Load_combo2",                   Form::path,     nullopt, "",                      "",                      "",                      &S::load_combo2},
    SettingRow{config,   "valide_fichier_aleatoire",      Form::flag,     nullopt, "false",                 "false",                 nullopt,                 no_variable},
    SettingRow{config,   "Nb_fichier_aleatoire",          Form::integer,  nullopt, "0",                     "0",                     nullopt,                 &S::nb_fichier_aleatoire},
    SettingRow{config,   "Chemin_fichier_aleatoire",      Form::path,     nullopt, "Aucun fichier",         "Aucun fichier",         nullopt,                 &S::chemin_fichier_aleatoire},
    SettingRow{config,   "valide_fichier_aleatoire1",     Form::flag,     nullopt, "false",                 "false",                 nullopt,                 no_variable},
    SettingRow{config,   "Nb_fichier_aleatoire1",         Form::integer,  nullopt, "0",                     "0",                     nullopt,                 &S::nb_fichier_aleatoire1},
    SettingRow{config,   "Chemin_fichier_aleatoire1",     Form::path,     nullopt, "Aucun fichier",         "Aucun fichier",         nullopt,                 &S::chemin_fichier_aleatoire1},
    SettingRow{config,   "Veille_antenne",                Form::integer,  "5",     "5",                     "5",                     "5",                     &S::veille_antenne},
    SettingRow{config,   "Ecart_artiste",                 Form::integer,  "0",     "0",                     "0",                     "0",                     &S::ecart_artiste},
    SettingRow{config,   "Programme_aide",                Form::path,     nullopt, "",                      "",                      nullopt,                 &S::programme_aide},
    SettingRow{config,   "Programme_journal",             Form::path,     nullopt, "",                      "",                      nullopt,                 &S::programme_journal},

    SettingRow{position, "Position_haut",                 Form::position, nullopt, "100",                   "100",                   "100",                   &S::position_haut},
    SettingRow{position, "Position_gauche",               Form::position, nullopt, "100",                   "100",                   "100",                   &S::position_gauche},
    SettingRow{position, "Position_haut_liste",           Form::position, nullopt, "100",                   "100",                   "100",                   &S::position_haut_liste},
    SettingRow{position, "Position_gauche_liste",         Form::position, nullopt, "100",                   "100",                   "100",                   &S::position_gauche_liste},
    SettingRow{position, "Position_haut_mini_lecteur",    Form::position, nullopt, "100",                   "100",                   "100",                   &S::position_haut_mini_lecteur},
    SettingRow{position, "Position_gauche_mini_lecteur",  Form::position, nullopt, "100",                   "100",                   "100",                   &S::position_gauche_mini_lecteur},

    // The load's own repair of the colours writes the values of a first start.
    SettingRow{colours,  "coul_texte_liste",              Form::colour,   nullopt, "986895",                "986895",                "986895",                &S::coul_texte_liste},
    SettingRow{colours,  "coul_label",                    Form::colour,   nullopt, "16777215",              "16777215",              "16777215",              &S::coul_label},
    SettingRow{colours,  "coul_text_cadre",               Form::colour,   nullopt, "-2147483630",           "-2147483630",           "-2147483630",           no_variable},
    SettingRow{colours,  "coul_text_bouton",              Form::colour,   nullopt, "-2147483630",           "-2147483630",           "-2147483630",           &S::coul_text_bouton},
    SettingRow{colours,  "coul_fond_liste",               Form::colour,   nullopt, "9408399",               "9408399",               "9408399",               &S::coul_fond_liste},
    SettingRow{colours,  "coul_fond_label",               Form::colour,   nullopt, "-2147483630",           "-2147483630",           "-2147483630",           no_variable},
    SettingRow{colours,  "coul_fenètre",                  Form::colour,   nullopt, "9408399",               "9408399",               "9408399",               &S::coul_fenetre},
    SettingRow{colours,  "coul_cadre",                    Form::colour,   nullopt, "-2147483630",           "-2147483630",           "-2147483630",           no_variable},
    // In memory the buttons are 0xC08000 after a rewrite, in the store 0x9F9F9F: the next start shows the second.
    SettingRow{colours,  "coul_bouton",                   Form::colour,   nullopt, "10461087",              "10461087",              "10461087",              &S::coul_bouton, "12615680"},
    SettingRow{colours,  "coul_bouton_groupe_lecture",    Form::text,     nullopt, "noir",                  "noir",                  "noir",                  &S::coul_bouton_groupe_lecture},
};
// clang-format on

void replace_all(std::string& text, std::string_view mark, std::string_view value) {
    if (const auto place = text.find(mark); place != std::string::npos)
        text.replace(place, mark.size(), value);
}

} // namespace

std::span<const SettingRow> settings_vocabulary() {
    return vocabulary;
}

const SettingRow& setting_row(std::string_view section, std::string_view key) {
    const auto* found = std::ranges::find_if(vocabulary, [&](const SettingRow& row) {
        return equal_ignoring_case(row.section, section) && equal_ignoring_case(row.key, key);
    });
    assert(found != vocabulary.end());
    return *found;
}

std::string expand_setting(std::string_view value, std::string_view program_folder) {
    std::string text{value};
    replace_all(text, "{dossier}", program_folder);
    replace_all(text, "{chemin}", with_backslash(program_folder));
    return text;
}

} // namespace sonarelle
