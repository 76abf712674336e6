#include "app/outil/programme.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

#include "platform/failure.h"
#include "platform/host/machine_paths.h"
#include "platform/paths.h"
#include "platform/simulated/scripted_dialogs.h"
#include "platform/text.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

struct ModeWord {
    std::string_view word;
    ReadingMode mode;
};

constexpr std::array mode_words{ModeWord{"liste", ReadingMode::list}, ModeWord{"pleine", ReadingMode::full_length},
                                ModeWord{"aleatoire", ReadingMode::random}, ModeWord{"lecteur", ReadingMode::decks}};

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

void expect_list(const std::string& file) {
    if (extension_of(file) != "dfm")
        throw Failure{FailureNumber::wrong_file_name, file, "un fichier .dfm est attendu"};
}

DrawnList drawn_list(const Arguments& arguments, const Option& list, const Option& spacing) {
    if (arguments.has(list.name) != arguments.has(spacing.name))
        throw WrongWords{std::string{list.name} + " et " + std::string{spacing.name} + " vont ensemble"};
    if (!arguments.has(list.name))
        return {};
    DrawnList drawn{arguments.value(list.name, ""),
                    whole_number<int>(arguments.value(spacing.name, ""), std::string{spacing.name})};
    expect_list(drawn.list);
    if (drawn.every < 1 || drawn.every > INT16_MAX)
        throw WrongWords{std::string{spacing.name} + " : un nombre de 1 à " + std::to_string(INT16_MAX) +
                         " est attendu"};
    return drawn;
}

OptionButton& reading_mode(Liste_son& list, ReadingMode mode) {
    return mode == ReadingMode::list          ? list.defined_end_mode
           : mode == ReadingMode::full_length ? list.full_length_mode
                                              : list.random_mode;
}

void load_decks(Station& station) {
    station.main_window.mix_titles.click();
    const auto entries = station.list_window.deck_loads();
    const int decks = std::min(3, station.list_window.rows.count());
    for (int deck = 1; deck <= decks; ++deck) {
        station.list_window.rows.select(deck);
        entries[static_cast<std::size_t>(deck - 1)]->click();
    }
    station.list_window.rows.select(1);
    station.deck_ring.deck(1).controls.play.click();
}

} // namespace

Frames length_of(const std::string& text) {
    const std::size_t hours = std::min(text.find(':'), text.size());
    const bool formed = hours >= 2 && hours <= 4 && text.size() == hours + 6 && text[hours + 3] == ':';
    const auto field = [&text](std::size_t place, std::size_t digits) {
        return whole_number<unsigned>(std::string_view{text}.substr(place, digits), "durée");
    };
    if (!formed || field(hours + 1, 2) > 59 || field(hours + 4, 2) > 59)
        throw WrongWords{"une durée s'écrit HH:MM:SS, les heures avec quatre chiffres au plus : " + text};
    return seconds(std::int64_t{field(0, hours)} * 3600 + field(hours + 1, 2) * 60 + field(hours + 4, 2));
}

Programme programme_of(const Arguments& arguments) {
    Programme programme;
    programme.list = arguments.filled_word(0, "LISTE.dfm");
    arguments.expect_at_most(1);
    expect_list(programme.list);
    if (arguments.has(length_option.name))
        programme.length = length_of(arguments.value(length_option.name, ""));
    programme.mode = mode_of(arguments.value(mode_option.name, "liste"));
    programme.jingles = drawn_list(arguments, jingles_option, jingle_spacing_option);
    programme.items = drawn_list(arguments, items_option, item_spacing_option);
    const bool draws = !programme.jingles.list.empty() || !programme.items.list.empty();
    if (draws && programme.mode == ReadingMode::decks)
        throw WrongWords{"--jingles et --fichiers demandent une lecture de liste"};
    programme.seed = whole_number<std::uint64_t>(arguments.value(seed_option.name, "1"), "--graine");
    programme.settings = changed_settings(arguments);
    return programme;
}

void open_programme(Station& station, ScriptedDialogs& dialogs, const Programme& programme, const std::string& list) {
    dialogs.expect_open(list);
    station.list_window.A_liste.click();
    if (station.list_window.rows.count() == 0)
        throw Failure{FailureNumber::file_not_found, programme.list, "aucun enregistrement à passer"};
}

void start_programme(Station& station, const Programme& programme, const DriveTable& drives) {
    station.list_window.rows.select(1);
    if (programme.mode == ReadingMode::decks)
        return load_decks(station);
    reading_mode(station.list_window, programme.mode).click();
    StationSettings& settings = station.settings;
    if (!programme.jingles.list.empty()) {
        settings.chemin_fichier_aleatoire = station_path_of(drives, programme.jingles.list);
        settings.nb_fichier_aleatoire = programme.jingles.every;
        station.drawn_rows.jingles.set_on(true);
    }
    if (!programme.items.list.empty()) {
        settings.chemin_fichier_aleatoire1 = station_path_of(drives, programme.items.list);
        settings.nb_fichier_aleatoire1 = programme.items.every;
        station.drawn_rows.items.set_on(true);
    }
    station.list_window.play_list.click();
}

Frames length_of_list(Station& station) {
    double length = 0;
    const RowTable& rows = station.list_window.rows;
    for (int row = 1; row <= rows.count(); ++row)
        ErrorIndicator{}.skip([&] { length += end_point_to_double(rows.sub_item(row, list_column::end)); });
    return nearest_frame(length);
}

} // namespace sonarelle
