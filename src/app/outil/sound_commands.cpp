#include <array>
#include <nlohmann/json.hpp>
#include <ostream>

#include "app/common/machine.h"
#include "app/outil/audio_files.h"
#include "app/outil/commands.h"
#include "app/outil/measuring.h"
#include "app/outil/printable.h"
#include "platform/audio/sdl_devices.h"

namespace sonarelle {

namespace {

using Json = nlohmann::ordered_json;

Json json_of(const Measure& measure) {
    return {{"fichier", measure.file},
            {"duree", measure.seconds},
            {"duree_texte", measure.title_text},
            {"video", measure.has_pictures}};
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

void list_outputs(const Call& call) {
    call.arguments.expect_at_most(0);
    for (const std::string& name : SdlDevices{}.names())
        call.out << name << '\n';
}

constexpr std::array json_options{json_option};

constexpr std::array commands{
    Command{"mesure", "AUDIO... [--json]", json_options, measure_files},
    Command{"sorties", "", {}, list_outputs},
};

} // namespace

std::span<const Command> sound_commands() {
    return commands;
}

} // namespace sonarelle
