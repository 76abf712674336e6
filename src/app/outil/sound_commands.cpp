#include <algorithm>
#include <array>
#include <filesystem>
#include <iostream>
#include <nlohmann/json.hpp>
#include <ostream>

#include "app/common/machine.h"
#include "app/outil/commands.h"
#include "app/outil/measuring.h"
#include "app/outil/printable.h"
#include "app/outil/progress.h"
#include "platform/audio/sdl_devices.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "playlist/list_file.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

using Json = nlohmann::ordered_json;

constexpr Option genre_option{"--genre", true};
constexpr Option volume_option{"--volume", true};

Json json_of(const Measure& measure) {
    return {{"fichier", measure.file},
            {"duree", measure.seconds},
            {"duree_texte", measure.title_text},
            {"video", measure.has_pictures}};
}

/// The words from this place on: files and folders.
std::vector<std::string> audio_words(const Arguments& arguments, std::size_t first) {
    std::vector<std::string> words{arguments.filled_word(first, "AUDIO")};
    for (std::size_t place = first + 1; place < arguments.words().size(); ++place)
        words.push_back(arguments.filled_word(place, "AUDIO"));
    return words;
}

/// Does the work for each file and names those that can't be played. True when all could.
template <typename Work, typename Refused>
bool for_each_file(const std::vector<std::string>& files, Work work, Refused refused) {
    Progress progress{"mesure", static_cast<std::int64_t>(files.size())};
    bool all_opened = true;
    for (std::size_t place = 0; place < files.size(); ++place) {
        progress.reach(static_cast<std::int64_t>(place));
        try {
            work(files[place]);
        } catch (const Failure& failure) {
            all_opened = false;
            progress.clear();
            refused(files[place], failure);
            std::cerr << "sonarelle-outil : " << printable(failure.what()) << '\n';
        }
    }
    return all_opened;
}

void measure_files(const Call& call) {
    const std::vector<std::string> files = audio_words(call.arguments, 0);
    Machine machine{call.options};
    Measuring measuring{machine};
    const bool json = call.arguments.has(json_option.name);
    const auto tell = [&](const std::string& file) {
        const Measure measure = measuring.measure(file);
        if (json)
            call.out << json_line(json_of(measure)) << '\n';
        else
            call.out << measure.title_text << "  " << Format(measure.seconds, "0.00", DecimalMark::point) << " s  "
                     << printable(file) << '\n';
    };
    const auto tell_refused = [&](const std::string& file, const Failure& failure) {
        if (json)
            call.out << json_line({{"fichier", file}, {"erreur", failure.description}}) << '\n';
    };
    if (!for_each_file(files, tell, tell_refused))
        throw AlreadyTold{};
}

/// A word's file, or all files below its folder, in the order of their names.
void add_files_of(const std::string& word, std::vector<std::string>& files) {
    std::error_code error;
    if (!std::filesystem::is_directory(word, error))
        return files.push_back(word);
    const auto first = static_cast<std::ptrdiff_t>(files.size());
    const auto options = std::filesystem::directory_options::skip_permission_denied;
    for (auto entry = std::filesystem::recursive_directory_iterator{word, options, error};
         entry != std::filesystem::recursive_directory_iterator{}; entry.increment(error))
        if (entry->is_regular_file(error))
            files.push_back(entry->path().string());
    std::sort(files.begin() + first, files.end());
}

/// The records of a list that is there; none for a new one.
std::vector<enreg_liste> records_of_list(Machine& machine, const std::string& file) {
    std::vector<enreg_liste> records;
    if (!std::filesystem::exists(file))
        return records;
    ListReader reader{machine.open(file)};
    enreg_liste record;
    for (std::int64_t number = 1; number <= reader.count(); ++number) {
        reader.read(number, record);
        records.push_back(record);
    }
    return records;
}

/// A row as the file manager makes one for a file.
/// @throws Failure for a picture, which would be on the air for no time at all, and for a path that a row can't hold.
enreg_liste record_of(const Measure& measure, const std::string& genre, std::int16_t volume) {
    if (measure.seconds <= 0)
        throw Failure{failure_number::unplayable_file, measure.file, "le fichier n'a pas de durée"};
    enreg_liste record;
    record.set_chemin(measure.station_path);
    if (record.trimmed_chemin() != measure.station_path)
        throw Failure{failure_number::wrong_file_name, measure.file, "le chemin ne tient pas dans 200 caractères"};
    record.set_debut_lecture(to_double(default_start, DecimalMark::point));
    record.set_fin_lecture(Format(measure.whole_seconds.value(), start_pattern, DecimalMark::point));
    record.set_genre(genre.empty() ? "divers" : genre);
    record.set_volume(volume);
    record.set_duree_piste(measure.manager_text);
    return record;
}

std::int16_t volume_of(const Arguments& arguments) {
    const std::string text = arguments.value(volume_option.name, "100");
    try {
        const int volume = to_integer(text, DecimalMark::point).value();
        if (volume >= 0 && volume <= 100)
            return static_cast<std::int16_t>(volume);
    } catch (const Failure&) {
    }
    throw WrongWords{"--volume attend un nombre de 0 à 100 : " + text};
}

void append(const Call& call) {
    const std::string& list = call.arguments.filled_word(0, "FICHIER.dfm");
    std::vector<std::string> files;
    for (const std::string& word : audio_words(call.arguments, 1))
        add_files_of(word, files);
    if (extension_of(list) != "dfm")
        throw Failure{failure_number::wrong_file_name, list, "un fichier .dfm est attendu"};
    const std::int16_t volume = volume_of(call.arguments);
    Machine machine{call.options};
    Measuring measuring{machine};
    std::vector<enreg_liste> records = records_of_list(machine, list);
    const auto add = [&](const std::string& file) {
        const std::string genre = call.arguments.value(genre_option.name, measuring.genre_of(file));
        records.push_back(record_of(measuring.measure(file), genre, volume));
    };
    const bool all_opened = for_each_file(files, add, [](const std::string&, const Failure&) {});
    const auto writer = machine.replace(list);
    for (const enreg_liste& record : records)
        writer->write(record.bytes());
    writer->commit();
    if (!all_opened)
        throw AlreadyTold{};
}

void list_outputs(const Call& call) {
    call.arguments.expect_at_most(0);
    for (const std::string& name : SdlDevices{}.names())
        call.out << name << '\n';
}

constexpr std::array json_options{json_option};
constexpr std::array append_options{genre_option, volume_option};

constexpr std::array commands{
    Command{"liste ajouter", "FICHIER.dfm AUDIO... [--genre G] [--volume V]", append_options, append},
    Command{"mesure", "AUDIO... [--json]", json_options, measure_files},
    Command{"sorties", "", {}, list_outputs},
};

} // namespace

std::span<const Command> sound_commands() {
    return commands;
}

} // namespace sonarelle
