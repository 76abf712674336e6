#include <QApplication>
#include <QTranslator>
#include <csignal>
#include <iostream>
#include <span>

#include "app/bureau/desk_program.h"
#include "app/bureau/french.h"
#include "app/common/arguments.h"
#include "app/common/common_options.h"
#include "platform/failure.h"

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
    std::cerr << "sonarelle : " << sentence << '\n';
    return status;
}

} // namespace

} // namespace sonarelle

int main(int count, char** words) {
    std::signal(SIGXFSZ, SIG_IGN); // a file that may grow no more is then a failure like a full disk
    QApplication application{count, words};
    QApplication::setApplicationName("Sonarelle");
    QApplication::setQuitOnLastWindowClosed(false); // the station has one way out
    QTranslator translator;
    sonarelle::speak_french(translator);
    sonarelle::dress_application();
    try {
        return sonarelle::run({words + 1, static_cast<std::size_t>(count - 1)});
    } catch (const sonarelle::WrongWords& wrong) {
        return sonarelle::refuse(std::string{wrong.what()} +
                                     "\nUsage : sonarelle [FICHIER] [--dossier DOSSIER] [--lecteur LETTRE=DOSSIER]...",
                                 sonarelle::wrong_words);
    } catch (const std::exception& failure) {
        return sonarelle::refuse(failure.what(), sonarelle::refused);
    }
}
