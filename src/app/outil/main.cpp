#include <algorithm>
#include <array>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "app/outil/commands.h"
#include "platform/failure.h"

namespace sonarelle {

namespace {

constexpr int done = 0;
constexpr int refused = 1;
constexpr int wrong_words = 2;

std::vector<Command> all_commands() {
    std::vector<Command> commands;
    for (const auto& group : {list_commands(), computing_commands(), settings_commands(), drive_commands()})
        commands.insert(commands.end(), group.begin(), group.end());
    return commands;
}

void print_usage(std::ostream& out) {
    out << "Usage :\n";
    for (const Command& command : all_commands())
        out << "  sonarelle-outil " << command.words << (command.usage.empty() ? "" : " ") << command.usage << '\n';
    out << "Partout : [--lecteur LETTRE=DOSSIER]... [--dossier DOSSIER], après le mot de la commande\n";
}

std::vector<std::string_view> parts_of(std::string_view words) {
    const auto space = words.find(' ');
    if (space == std::string_view::npos)
        return {words};
    return {words.substr(0, space), words.substr(space + 1)};
}

/// The command whose words stand at the head of the line, the longest first.
const Command* find_command(std::span<const Command> commands, std::span<char* const> line, std::size_t& length) {
    const Command* best = nullptr;
    for (const Command& command : commands) {
        const auto words = parts_of(command.words);
        const bool fits = words.size() <= line.size() &&
                          std::equal(words.begin(), words.end(), line.begin(),
                                     [](std::string_view word, const char* given) { return word == given; });
        if (fits && (best == nullptr || words.size() > length)) {
            best = &command;
            length = words.size();
        }
    }
    return best;
}

int run(std::span<char* const> line) {
    const std::vector<Command> commands = all_commands();
    std::size_t length = 0;
    const Command* command = find_command(commands, line, length);
    if (command == nullptr)
        throw WrongWords{line.empty() ? "aucune commande" : "commande inconnue : " + std::string{line.front()}};
    std::vector<Option> options{drive_option, folder_option};
    options.insert(options.end(), command->options.begin(), command->options.end());
    const Arguments arguments{line.subspan(length), options};
    command->run({arguments, std::cin, std::cout});
    if (!std::cout.flush())
        throw Failure{failure_number::disk_full, "sortie standard"};
    return done;
}

} // namespace

} // namespace sonarelle

int main(int count, char** words) {
    std::ios::sync_with_stdio(false);
    try {
        return sonarelle::run({words + 1, static_cast<std::size_t>(count - 1)});
    } catch (const sonarelle::WrongWords& wrong) {
        std::cerr << "sonarelle-outil : " << wrong.what() << '\n';
        sonarelle::print_usage(std::cerr);
        return sonarelle::wrong_words;
    } catch (const std::exception& failure) {
        std::cerr << "sonarelle-outil : " << failure.what() << '\n';
        return sonarelle::refused;
    }
}
