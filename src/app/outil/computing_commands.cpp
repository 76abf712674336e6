#include <array>
#include <ostream>

#include "app/outil/commands.h"
#include "app/outil/printable.h"
#include "platform/duration_text.h"
#include "platform/failure.h"
#include "platform/numbers.h"

namespace sonarelle {

namespace {

double duration_of(const std::string& word) {
    const double seconds = to_double(word, DecimalMark::point);
    if (seconds < 0)
        throw Failure{FailureNumber::wrong_call, word, "une durée n'est pas négative"};
    return seconds;
}

template <std::string convert(double)>
void for_each_duration(const Call& call) {
    (void)call.arguments.word(0, "SECONDES");
    std::string lines;
    for (const std::string& word : call.arguments.words())
        try {
            lines += convert(duration_of(word)) + "\n";
        } catch (const Failure& failure) {
            throw Failure{failure.number, printable_word(word), failure.description};
        }
    call.out << lines;
}

std::string on_the_title_line(double seconds) {
    return format_heure(seconds, DecimalMark::point);
}

/// The file manager rounds to whole seconds and shows one at least.
std::string in_the_file_manager(double seconds) {
    const Integer whole = to_integer(seconds);
    return formate_duree(whole == 0 ? 1 : whole.value(), DecimalMark::point);
}

constexpr std::array commands{
    Command{"calcul heure", "SECONDES...", {}, for_each_duration<on_the_title_line>},
    Command{"calcul duree", "SECONDES...", {}, for_each_duration<in_the_file_manager>},
};

} // namespace

std::span<const Command> computing_commands() {
    return commands;
}

} // namespace sonarelle
