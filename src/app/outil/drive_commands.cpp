#include <array>
#include <ostream>

#include "app/common/machine.h"
#include "app/outil/commands.h"
#include "app/outil/printable.h"

namespace sonarelle {

namespace {

constexpr Option remove_option{"--oter", false};

void print_drives(const Call& call, const DriveTable& drives) {
    for (const auto& [drive, folder] : drives.entries()) {
        const std::string shown = folder.empty() ? "/" : folder;
        if (call.arguments.has(json_option.name))
            call.out << json_line({{"lecteur", drive}, {"dossier", shown}}) << '\n';
        else
            call.out << printable(drive) << '\t' << printable(shown) << '\n';
    }
}

void drives(const Call& call) {
    call.arguments.expect_at_most(2);
    Machine machine{call.options};
    const auto& words = call.arguments.words();
    const bool removes = call.arguments.has(remove_option.name);
    if (words.empty() && !removes)
        return print_drives(call, machine.drives());
    const std::string& drive = call.arguments.filled_word(0, "LETTRE");
    if (removes) {
        call.arguments.expect_at_most(1);
        machine.remove_drive(drive);
    } else {
        machine.set_drive(drive, call.arguments.filled_word(1, "DOSSIER"));
    }
}

constexpr std::array drive_options{json_option, remove_option};

constexpr std::array commands{
    Command{"lecteurs", "[LETTRE DOSSIER | LETTRE --oter] [--json]", drive_options, drives},
};

} // namespace

std::span<const Command> drive_commands() {
    return commands;
}

} // namespace sonarelle
