#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <exception>
#include <iostream>
#include <new>
#include <string>
#include <vector>

#include "app/outil/commands.h"
#include "app/outil/printable.h"
#include "platform/failure.h"

namespace sonarelle {

namespace {

constexpr int done = 0;
constexpr int refused = 1;
constexpr int wrong_words = 2;

constexpr const char* output_name = "sortie standard";

std::vector<Command> all_commands() {
    std::vector<Command> commands;
    for (const auto& group : {list_commands(), sound_commands(), tag_commands(), computing_commands(), mix_commands(),
                              air_commands(), settings_commands(), drive_commands()})
        commands.insert(commands.end(), group.begin(), group.end());
    return commands;
}

void print_usage(std::ostream& out) {
    out << "Usage :\n";
    for (const Command& command : all_commands())
        out << "  sonarelle-outil " << command.words << (command.usage.empty() ? "" : " ") << command.usage << '\n';
    out << "Partout : [--lecteur LETTRE=DOSSIER]... [--dossier DOSSIER], après le mot de la commande\n";
    out << "Derrière un -- seul, un mot peut commencer par --\n";
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
    const CommonOptions common = common_options(arguments);
    command->run({arguments, common, std::cin, std::cout});
    if (!std::cout.flush())
        throw errno == ENOSPC ? Failure{failure_number::disk_full, output_name}
                              : Failure{failure_number::device_fault, output_name, "écriture impossible"};
    return done;
}

/// Where a caller closed one of the three, the next file opened would get its number, and be read or written for it.
/// What is held in its place fails at every use.
void hold_standard_files() {
    for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (::fcntl(number, F_GETFD) == -1)
            static_cast<void>(::open("/dev/null", number == STDIN_FILENO ? O_WRONLY : O_RDONLY));
}

int refuse(std::string_view sentence) {
    std::cerr << "sonarelle-outil : " << printable(sentence) << '\n';
    return refused;
}

} // namespace

} // namespace sonarelle

int main(int count, char** words) {
    std::ios::sync_with_stdio(false);
    std::signal(SIGXFSZ, SIG_IGN); // a file that may grow no more is then a failure like a full disk
    sonarelle::hold_standard_files();
    try {
        return sonarelle::run({words + 1, static_cast<std::size_t>(count - 1)});
    } catch (const sonarelle::WrongWords& wrong) {
        sonarelle::refuse(wrong.what());
        sonarelle::print_usage(std::cerr);
        return sonarelle::wrong_words;
    } catch (const sonarelle::AlreadyTold&) {
        std::cout.flush();
        return sonarelle::refused;
    } catch (const sonarelle::Failure& failure) {
        return sonarelle::refuse(failure.what());
    } catch (const std::bad_alloc&) {
        return sonarelle::refuse("mémoire insuffisante");
    } catch (const std::exception& fault) {
        return sonarelle::refuse("panne du programme (" + std::string{fault.what()} + ")");
    }
}
