#include <array>
#include <ostream>

#include "app/common/machine.h"
#include "app/outil/commands.h"
#include "app/outil/printable.h"
#include "configuration/settings_store.h"
#include "platform/failure.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

void print_setting(const Call& call, const Setting& setting) {
    if (call.arguments.has(json_option.name))
        call.out << json_line({{"section", setting.section}, {"cle", setting.key}, {"valeur", setting.value}}) << '\n';
    else
        call.out << printable(setting.section) << '\t' << printable(setting.key) << '\t' << printable(setting.value)
                 << '\n';
}

void list(const Call& call) {
    call.arguments.expect_at_most(0);
    Machine machine{call.options};
    for (const Setting& setting : machine.settings().all(settings_application))
        print_setting(call, setting);
}

void read(const Call& call) {
    const std::string& section = call.arguments.word(0, "SECTION");
    const std::string& key = call.arguments.word(1, "CLE");
    call.arguments.expect_at_most(2);
    Machine machine{call.options};
    for (const Setting& setting : machine.settings().all(settings_application))
        if (equal_ignoring_case(setting.section, section) && equal_ignoring_case(setting.key, key)) {
            call.out << printable(setting.value) << '\n';
            return;
        }
    throw Failure{FailureNumber::wrong_call, section + " " + key, "cette clé n'a pas de valeur"};
}

void write(const Call& call) {
    const std::string& section = call.arguments.word(0, "SECTION");
    const std::string& key = call.arguments.word(1, "CLE");
    const std::string& value = call.arguments.word(2, "VALEUR");
    call.arguments.expect_at_most(3);
    Machine machine{call.options};
    machine.settings().SaveSetting(settings_application, section, key, value);
}

void write_first_values(const Call& call) {
    call.arguments.expect_at_most(0);
    Machine machine{call.options};
    SettingsStore{machine.settings(), machine.program_folder(), DecimalMark::point}.write_column(&SettingRow::first);
}

constexpr std::array json_options{json_option};

constexpr std::array commands{
    Command{"reglages", "[--json]", json_options, list},
    Command{"reglages lire", "SECTION CLE", {}, read},
    Command{"reglages ecrire", "SECTION CLE VALEUR", {}, write},
    Command{"reglages premier", "", {}, write_first_values},
};

} // namespace

std::span<const Command> settings_commands() {
    return commands;
}

} // namespace sonarelle
