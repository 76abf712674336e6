#include <QApplication>
#include <QTranslator>
#include <iostream>
#include <span>

#include "app/bureau/desk_program.h"
#include "app/bureau/french.h"
#include "app/common/arguments.h"
#include "app/common/common_options.h"
#include "app/common/quiet_signals.h"
#include "desktop/message_box.h"
#include "platform/failure.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

constexpr int done = 0;
constexpr int refused = 1;
constexpr int wrong_words = 2;

int run(std::span<char* const> words) {
    const Arguments arguments{words, std::array{drive_option, folder_option}};
    arguments.expect_at_most(1);
    Machine machine{common_options(arguments)};
    DeskProgram program{machine, arguments.words().empty() ? std::string{} : arguments.words().front()};
    program.run();
    return done;
}

int refuse(std::string_view sentence, int status) {
    std::cerr << "sonarelle : " << printable(sentence) << '\n';
    return status;
}

/// Who starts the desk from a menu sees no terminal.
void show_refusal(std::string_view sentence) {
    tell(nullptr, "Sonarelle", std::string{sentence}, Icon::stop);
}

} // namespace

} // namespace sonarelle

int main(int count, char** words) {
    sonarelle::take_failures_for_signals();
    QApplication application{count, words};
    QApplication::setApplicationName("Sonarelle");
    QApplication::setQuitOnLastWindowClosed(false); // the station has one way out
    QTranslator translator;
    sonarelle::speak_french(translator);
    sonarelle::dress_application();
    try {
        return sonarelle::run({words + 1, static_cast<std::size_t>(count - 1)});
    } catch (const sonarelle::WrongWords& wrong) {
        const int status = sonarelle::refuse(wrong.what(), sonarelle::wrong_words);
        std::cerr << "Usage : sonarelle [FICHIER] [--dossier DOSSIER] [--lecteur LETTRE=DOSSIER]...\n";
        return status;
    } catch (const std::exception& failure) {
        const int status = sonarelle::refuse(failure.what(), sonarelle::refused);
        sonarelle::show_refusal(failure.what());
        return status;
    }
}
