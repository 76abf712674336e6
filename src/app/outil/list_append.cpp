#include <array>

#include "app/common/machine.h"
#include "app/outil/audio_files.h"
#include "app/outil/commands.h"
#include "app/outil/list_target.h"
#include "app/outil/measured_row.h"
#include "platform/paths.h"
#include "playlist/list_file.h"

namespace sonarelle {

namespace {

constexpr Option genre_option{"--genre", true};
constexpr Option volume_option{"--volume", true};

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

/// Writes the list with these records at its end. False when another program has written it meanwhile.
bool write_appended(Machine& machine, const std::string& list, const std::vector<enreg_liste>& added) {
    std::optional<FileFacts> seen;
    const auto writer = machine.replace(list);
    if (auto file = open_if_there(machine, list)) {
        seen = file->facts();
        ListReader reader{std::move(file)};
        if (reader.rest() > 0)
            throw Failure{FailureNumber::wrong_call, list,
                          "des octets suivent le dernier enregistrement et seraient perdus"};
        enreg_liste record;
        for (std::int64_t number = 1; number <= reader.count(); ++number) {
            reader.read(number, record);
            writer->write(record.bytes());
        }
    }
    for (const enreg_liste& record : added)
        writer->write(record.bytes());
    return writer->commit_over(seen).has_value();
}

void append(const Call& call) {
    const std::string& list = call.arguments.filled_word(0, "FICHIER.dfm");
    const std::vector<std::string> words = audio_words(call.arguments, 1);
    if (extension_of(list) != "dfm")
        throw Failure{FailureNumber::wrong_file_name, list, "un fichier .dfm est attendu"};
    const std::int16_t volume = volume_of(call.arguments);
    std::optional<std::string> genre;
    if (call.arguments.has(genre_option.name))
        genre = call.arguments.value(genre_option.name, "");
    Machine machine{call.options};
    static_cast<void>(machine.replace(list)); // refused before the files are measured
    Measuring measuring{machine};
    const AudioFiles files{words};
    std::vector<enreg_liste> added;
    const bool all_opened = for_each_file(
        files.names(), [&](const std::string& file) { added.push_back(measured_row(measuring, file, genre, volume)); });
    while (!added.empty() && !write_appended(machine, list, added)) {
    }
    if (!all_opened || !files.all_folders_read())
        throw AlreadyTold{};
}

constexpr std::array options{genre_option, volume_option};

constexpr std::array commands{
    Command{"liste ajouter", "FICHIER.dfm AUDIO... [--genre G] [--volume V]", options, append},
};

} // namespace

std::span<const Command> append_commands() {
    return commands;
}

} // namespace sonarelle
