#include "app/outil/programme.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "configuration/settings_vocabulary.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "platform/simulated/simulated_dialogs.h"
#include "platform/text.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

struct ModeWord {
    std::string_view word;
    ReadingMode mode;
};

constexpr std::array mode_words{ModeWord{"liste", ReadingMode::list}, ModeWord{"pleine", ReadingMode::full_length},
                                ModeWord{"lecteur", ReadingMode::decks}};

template <typename Number>
Number whole_number(std::string_view text, const std::string& option) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size())
        throw WrongWords{option + " : ce n'est pas un nombre : " + std::string{text}};
    return number;
}

ReadingMode mode_of(const std::string& word) {
    const auto* found = std::ranges::find(mode_words, word, &ModeWord::word);
    if (found == mode_words.end())
        throw WrongWords{"mode inconnu : " + word};
    return found->mode;
}

Setting setting_of(const std::string& words) {
    const auto equals = words.find('=');
    const std::string key = words.substr(0, equals);
    for (const SettingRow& row : settings_vocabulary())
        if (equals != std::string::npos && equal_ignoring_case(row.key, key))
            return {std::string{row.section}, std::string{row.key}, words.substr(equals + 1)};
    throw WrongWords{"--reglage attend CLE=VALEUR, avec une clé connue : " + words};
}

void load_decks(Station& station) {
    station.main_window.coche2.click();
    const auto entries = station.list_window.deck_loads();
    const int decks = std::min(3, station.list_window.ListView1.count());
    for (int deck = 1; deck <= decks; ++deck) {
        station.list_window.ListView1.select(deck);
        entries[static_cast<std::size_t>(deck - 1)]->click();
    }
    station.list_window.ListView1.select(1);
    station.desk.deck(1).controls.play.click();
}

} // namespace

Frames length_of(const std::string& text) {
    const bool formed = text.size() == 8 && text[2] == ':' && text[5] == ':';
    if (!formed)
        throw WrongWords{"une durée s'écrit HH:MM:SS : " + text};
    const auto field = [&text](std::size_t place) {
        return whole_number<unsigned>(std::string_view{text}.substr(place, 2), "durée");
    };
    return seconds(std::int64_t{field(0)} * 3600 + field(3) * 60 + field(6));
}

Programme programme_of(const Arguments& arguments) {
    Programme programme;
    programme.list = arguments.filled_word(0, "LISTE.dfm");
    arguments.expect_at_most(1);
    if (extension_of(programme.list) != "dfm")
        throw Failure{failure_number::wrong_file_name, programme.list, "un fichier .dfm est attendu"};
    if (arguments.has(length_option.name))
        programme.length = length_of(arguments.value(length_option.name, ""));
    programme.mode = mode_of(arguments.value(mode_option.name, "liste"));
    programme.seed = whole_number<std::uint64_t>(arguments.value(seed_option.name, "1"), "--graine");
    programme.settings = changed_settings(arguments);
    return programme;
}

std::vector<Setting> changed_settings(const Arguments& arguments) {
    std::vector<Setting> settings;
    for (const std::string& words : arguments.values(setting_option.name))
        settings.push_back(setting_of(words));
    return settings;
}

void start_programme(Station& station, SimulatedDialogs& dialogs, const Programme& programme, const std::string& list) {
    dialogs.expect_open(list);
    station.list_window.A_liste.click();
    RowTable& rows = station.list_window.ListView1;
    if (rows.count() == 0)
        throw Failure{failure_number::file_not_found, programme.list, "aucun enregistrement à passer"};
    rows.select(1);
    if (programme.mode == ReadingMode::decks)
        return load_decks(station);
    (programme.mode == ReadingMode::list ? station.list_window.Option3 : station.list_window.Option4).click();
    station.list_window.Image1.click();
}

Frames length_of_list(Station& station) {
    double length = 0;
    const RowTable& rows = station.list_window.ListView1;
    for (int row = 1; row <= rows.count(); ++row)
        ErrorIndicator{}.skip([&] { length += end_point_to_double(rows.sub_item(row, list_column::end)); });
    return nearest_frame(length);
}

} // namespace sonarelle
