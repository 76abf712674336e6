#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <exception>
#include <iostream>
#include <new>
#include <string>
#include <system_error>
#include <vector>

#include "app/common/quiet_signals.h"
#include "app/outil/commands.h"
#include "app/outil/output_failure.h"
#include "app/outil/printable.h"
#include "platform/failure.h"

namespace sonarelle {

namespace {

constexpr int done = 0;
constexpr int refused = 1;
constexpr int wrong_words = 2;

std::vector<Command> all_commands() {
    std::vector<Command> commands;
    for (const auto& group :
         {list_commands(), append_commands(), conversion_commands(), sound_commands(), tag_commands(),
          computing_commands(), mix_commands(), air_commands(), settings_commands(), drive_commands()})
        commands.insert(commands.end(), group.begin(), group.end());
    return commands;
}

std::string usage_of(const Command& command) {
    return "sonarelle-outil " + std::string{command.words} + (command.usage.empty() ? "" : " ") +
           std::string{command.usage} + '\n';
}

void print_usage(std::ostream& out, std::span<const Command> commands) {
    out << "Usage :\n";
    for (const Command& command : commands)
        out << "  " << usage_of(command);
    out << "Partout : [--lecteur LETTRE=DOSSIER]... [--dossier DOSSIER], après le mot de la commande\n"
        << "Derrière un -- seul, un mot peut commencer par --\n"
        << "sonarelle-outil --aide montre toutes les commandes, COMMANDE --aide l'une d'elles\n";
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

void run(const Command& command, std::span<char* const> words) {
    std::vector<Option> options{drive_option, folder_option};
    options.insert(options.end(), command.options.begin(), command.options.end());
    const Arguments arguments{words, options};
    const CommonOptions common = common_options(arguments);
    command.run({arguments, common, std::cin, std::cout});
    if (!std::cout.flush())
        throw output_failure();
}

/// The commands that a line can mean: the one whose words it begins with, or those of its first word, or none.
std::vector<Command> meant_commands(std::span<char* const> line) {
    std::vector<Command> commands = all_commands();
    std::size_t length = 0;
    if (const Command* command = find_command(commands, line, length))
        return {*command};
    std::erase_if(commands, [line](const Command& command) {
        return line.empty() || parts_of(command.words).front() != line.front();
    });
    return commands;
}

constexpr std::string_view help_word = "--aide";

bool asks_for_help(std::span<char* const> line) {
    const auto end = std::ranges::find(line, std::string_view{"--"});
    return std::find(line.begin(), end, help_word) != end;
}

/// Where a caller closed one of the three, the next file opened would get its number, and be read or written for it.
/// What is held in its place fails at every use.
void hold_standard_files() {
    for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (::fcntl(number, F_GETFD) == -1)
            static_cast<void>(::open("/dev/null", number == STDIN_FILENO ? O_WRONLY : O_RDONLY));
}

/// A terminal that stands still must not hold up the program's end.
int refuse(std::string_view sentence) {
    pollfd place{STDERR_FILENO, POLLOUT, 0};
    if (::poll(&place, 1, 1000) == 1)
        std::cerr << "sonarelle-outil : " << printable(sentence) << '\n';
    return refused;
}

int refuse_words(std::string_view sentence, std::span<const Command> meant) {
    refuse(sentence);
    for (const Command& command : meant)
        std::cerr << "Usage : " << usage_of(command);
    if (meant.empty())
        std::cerr << "Usage : sonarelle-outil COMMANDE... (sonarelle-outil --aide les montre toutes)\n";
    return wrong_words;
}

int help(std::span<char* const> line) {
    std::vector<char*> words{line.begin(), line.end()};
    std::erase_if(words, [](const char* word) { return word == help_word; });
    const std::vector<Command> commands = words.empty() ? all_commands() : meant_commands(words);
    if (commands.empty())
        return refuse_words("commande inconnue : " + std::string{words.front()}, {});
    print_usage(std::cout, commands);
    return std::cout.flush() ? done : refuse(output_failure().what());
}

int run(std::span<char* const> line) {
    if (asks_for_help(line))
        return help(line);
    const std::vector<Command> commands = all_commands();
    std::size_t length = 0;
    const Command* command = find_command(commands, line, length);
    if (command == nullptr)
        return refuse_words(line.empty() ? "aucune commande" : "commande inconnue : " + std::string{line.front()},
                            meant_commands(line));
    try {
        run(*command, line.subspan(length));
        return done;
    } catch (const WrongWords& wrong) {
        return refuse_words(wrong.what(), {command, 1});
    }
}

} // namespace

} // namespace sonarelle

int main(int count, char** words) {
    std::ios::sync_with_stdio(false);
    sonarelle::take_failures_for_signals();
    sonarelle::hold_standard_files();
    try {
        return sonarelle::run({words + 1, static_cast<std::size_t>(count - 1)});
    } catch (const sonarelle::AlreadyTold&) {
        std::cout.flush();
        return sonarelle::refused;
    } catch (const sonarelle::Failure& failure) {
        return sonarelle::refuse(failure.what());
    } catch (const std::system_error& fault) {
        return sonarelle::refuse(sonarelle::sentence_of_errno(fault.code().value()));
    } catch (const std::bad_alloc&) {
        return sonarelle::refuse("mémoire insuffisante");
    } catch (const std::exception& fault) {
        return sonarelle::refuse("panne du programme (" + std::string{fault.what()} + ")");
    }
}
