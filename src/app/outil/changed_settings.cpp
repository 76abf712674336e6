#include "app/outil/changed_settings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

#include "app/outil/printable.h"
#include "configuration/settings_vocabulary.h"

namespace sonarelle {

namespace {

struct Range {
    std::string_view key;
    std::int64_t least;
    std::int64_t most;
};

// With what lies outside, the chain would miss its seconds or stand still.
constexpr std::array ranges{
    Range{"Mix", 1, 60},
    Range{"Préchargement", 1, 60},
    Range{"Forcer_Mix_Jingles", 1, 60},
    Range{"valeur_max_jingles", 1, 32767},
    Range{"Mix_audio", 1, 60},
    Range{"Mix_audio_vitesse", 1, 1000},
    Range{"Mix_audio_attenuation", 0, 20},
    Range{"Valeur_vitesse_timer", 500, 1000},
    Range{"Nb_fichier_aleatoire", 0, 32767},
    Range{"Nb_fichier_aleatoire1", 0, 32767},
    Range{"Veille_antenne", 0, 32767},
    Range{"Ecart_artiste", 0, 100},
};

Range range_of(const SettingRow& row) {
    const auto* found = std::ranges::find(ranges, row.key, &Range::key);
    if (found != ranges.end())
        return *found;
    return row.form == SettingForm::colour ? Range{row.key, INT32_MIN, INT32_MAX}
                                           : Range{row.key, INT16_MIN, INT16_MAX};
}

bool is_number(SettingForm form) {
    return form == SettingForm::integer || form == SettingForm::colour || form == SettingForm::position;
}

void check_value(const SettingRow& row, const std::string& value) {
    if (!is_number(row.form))
        return;
    const Range range = range_of(row);
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    if (error != std::errc{} || end != value.data() + value.size() || number < range.least || number > range.most)
        throw WrongWords{"--reglage " + std::string{row.key} + " attend un nombre entier de " +
                         std::to_string(range.least) + " à " + std::to_string(range.most) + " : " +
                         printable_word(value)};
}

Setting setting_of(const std::string& words) {
    const auto equals = words.find('=');
    const std::string key = words.substr(0, equals);
    for (const SettingRow& row : settings_vocabulary())
        if (equals != std::string::npos && equal_ignoring_case(row.key, key)) {
            const std::string value = words.substr(equals + 1);
            check_value(row, value);
            return {std::string{row.section}, std::string{row.key}, value};
        }
    throw WrongWords{"--reglage attend CLE=VALEUR, avec une clé connue : " + words};
}

} // namespace

std::vector<Setting> changed_settings(const Arguments& arguments) {
    std::vector<Setting> settings;
    for (const std::string& words : arguments.values(setting_option.name))
        settings.push_back(setting_of(words));
    return settings;
}

} // namespace sonarelle
