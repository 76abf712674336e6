#include <fcntl.h>

#include <array>
#include <fstream>
#include <ostream>

#include "app/common/machine.h"
#include "app/outil/commands.h"
#include "app/outil/on_air.h"
#include "app/outil/rehearsal.h"
#include "platform/failure.h"
#include "platform/host/machine_files.h"
#include "state/station_settings.h"

namespace sonarelle {

namespace {

constexpr Option rendering_option{"--rendu", true};
constexpr Option picture_option{"--image", true};
constexpr Option silent_option{"--sans-son", false};
constexpr Option gestures_option{"--gestes", true};
constexpr Option output_option{"--sortie", true};
constexpr Option journal_option{"--journal", false};

std::vector<Gesture> gestures_of(const Arguments& arguments, const DriveTable& drives) {
    if (!arguments.has(gestures_option.name))
        return {};
    const std::string file = arguments.value(gestures_option.name, "");
    static_cast<void>(open_plain(file, O_RDONLY, Access::reading, file)); // a pipe would be waited for
    std::ifstream in{file};
    return read_gestures(in, file, drives);
}

/// Each list opens, or the failure names it.
void open_lists(Machine& machine, const Programme& programme) {
    for (const std::string* list : {&programme.list, &programme.jingles.list, &programme.items.list})
        if (!list->empty())
            static_cast<void>(machine.open(*list));
}

void rehearse(const Call& call) {
    Rehearsal rehearsal;
    rehearsal.programme = programme_of(call.arguments);
    Machine machine{call.options};
    if (call.arguments.has(rendering_option.name))
        rehearsal.rendering = call.arguments.value(rendering_option.name, "");
    if (call.arguments.has(picture_option.name))
        rehearsal.picture = call.arguments.value(picture_option.name, "");
    rehearsal.without_sound = call.arguments.has(silent_option.name);
    if (rehearsal.without_sound && rehearsal.rendering)
        throw WrongWords{"--rendu et --sans-son s'excluent"};
    rehearsal.drives = machine.drives();
    rehearsal.gestures = gestures_of(call.arguments, rehearsal.drives);
    rehearsal.stored_settings = machine.settings().all(settings_application);
    open_lists(machine, rehearsal.programme);
    run_rehearsal(rehearsal, call.out);
}

void go_on_air(const Call& call) {
    LiveProgramme live;
    live.programme = programme_of(call.arguments);
    Machine machine{call.options};
    if (call.arguments.has(output_option.name))
        live.output = call.arguments.value(output_option.name, "");
    live.shows_journal = call.arguments.has(journal_option.name);
    live.told = machine.make_ready(Machine::EmptyStore::is_filled);
    live.drives = machine.drives();
    live.program_folder = machine.program_folder();
    open_lists(machine, live.programme);
    run_on_air(live, machine.settings());
}

constexpr std::array rehearsal_options{length_option,    mode_option,           seed_option,     setting_option,
                                       rendering_option, silent_option,         gestures_option, picture_option,
                                       jingles_option,   jingle_spacing_option, items_option,    item_spacing_option};
constexpr std::array air_options{length_option, mode_option,        seed_option,    setting_option,
                                 output_option, journal_option,     jingles_option, jingle_spacing_option,
                                 items_option,  item_spacing_option};

constexpr std::array commands{
    Command{"repetition",
            "LISTE.dfm [--duree HH:MM:SS] [--rendu AIR.wav] [--sans-son] [--graine N] [--reglage CLE=VALEUR]... "
            "[--mode liste|pleine|aleatoire|lecteur] [--jingles J.dfm --tous N] [--fichiers F.dfm --tous1 N] "
            "[--gestes GESTES.txt] [--image AIR.svg]",
            rehearsal_options, rehearse},
    Command{"antenne",
            "LISTE.dfm [--duree HH:MM:SS] [--mode liste|pleine|aleatoire|lecteur] [--jingles J.dfm --tous N] "
            "[--fichiers F.dfm --tous1 N] [--reglage CLE=VALEUR]... [--graine N] [--sortie NOM|aucune] [--journal]",
            air_options, go_on_air},
};

} // namespace

std::span<const Command> air_commands() {
    return commands;
}

} // namespace sonarelle
