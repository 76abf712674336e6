#include <algorithm>
#include <array>
#include <filesystem>
#include <iostream>
#include <nlohmann/json.hpp>
#include <ostream>

#include "app/outil/commands.h"
#include "app/outil/machine.h"
#include "app/outil/measuring.h"
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

void measure_files(const Call& call) {
    static_cast<void>(call.arguments.word(0, "AUDIO"));
    Machine machine{call.options};
    Measuring measuring{machine};
    const bool json = call.arguments.has(json_option.name);
    bool all_opened = true;
    for (const std::string& file : call.arguments.words()) {
        try {
            const Measure measure = measuring.measure(file);
            if (json)
                call.out << json_of(measure).dump() << '\n';
            else
                call.out << measure.title_text << "  " << Format(measure.seconds, "0.00", DecimalMark::point) << " s  "
                         << file << '\n';
        } catch (const Failure& failure) {
            all_opened = false;
            if (json)
                call.out << Json{{"fichier", file}, {"erreur", failure.description}}.dump() << '\n';
            std::cerr << "sonarelle-outil : " << failure.what() << '\n';
        }
    }
    if (!all_opened)
        throw AlreadyTold{};
}

/// The files of a word: itself, or all below a folder, in the order of their names.
std::vector<std::string> files_of(const std::string& word) {
    if (!std::filesystem::is_directory(word))
        return {word};
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator{
             word, std::filesystem::directory_options::skip_permission_denied})
        if (entry.is_regular_file())
            files.push_back(entry.path().string());
    std::ranges::sort(files);
    return files;
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
enreg_liste record_of(const Measure& measure, const std::string& genre, std::int16_t volume) {
    enreg_liste record;
    record.set_chemin(measure.station_path);
    record.set_debut_lecture(to_double(default_start, DecimalMark::point));
    record.set_fin_lecture(Format(measure.whole_seconds.value(), start_pattern, DecimalMark::point));
    record.set_genre(genre.empty() ? "divers" : genre);
    record.set_volume(volume);
    record.set_duree_piste(measure.manager_text);
    return record;
}

void append(const Call& call) {
    const std::string& list = call.arguments.word(0, "FICHIER.dfm");
    static_cast<void>(call.arguments.word(1, "AUDIO"));
    if (extension_of(list) != "dfm")
        throw Failure{failure_number::wrong_file_name, list, "un fichier .dfm est attendu"};
    const Integer volume = to_integer(call.arguments.value(volume_option.name, "100"), DecimalMark::point);
    Machine machine{call.options};
    Measuring measuring{machine};
    std::vector<enreg_liste> records = records_of_list(machine, list);
    bool all_opened = true;
    for (std::size_t word = 1; word < call.arguments.words().size(); ++word)
        for (const std::string& file : files_of(call.arguments.words()[word])) {
            try {
                records.push_back(record_of(measuring.measure(file),
                                            call.arguments.value(genre_option.name, measuring.genre_of(file)),
                                            static_cast<std::int16_t>(volume.value())));
            } catch (const Failure& failure) {
                all_opened = false;
                std::cerr << "sonarelle-outil : " << failure.what() << '\n';
            }
        }
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
