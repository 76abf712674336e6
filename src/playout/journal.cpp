#include "playout/journal.h"

#include "platform/application.h"
#include "platform/calendar_text.h"
#include "platform/dialogs.h"
#include "platform/disk.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "platform/scheduler.h"
#include "platform/shell.h"
#include "platform/text.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

constexpr std::string_view journal_file = "journal.doc";

} // namespace

bool Journal::append_line() {
    return ErrorIndicator{}.skip([this] {
        enter_program_folder(platform_);
        // An entry is one line, whatever a file is called.
        platform_.disk.append(journal_file, to_windows_1252(printable(chain_.ligne_journal)) + "\r\n");
    });
}

bool Journal::note(const std::string& line) {
    if (!chain_.journal_actif.is_true())
        return true;
    chain_.ligne_journal = line;
    const bool written = append_line();
    if (on_line)
        on_line(line);
    chain_.ligne_journal.clear();
    return written;
}

// A tick of the chain doesn't wait for the operator.
void Journal::note_of_list_window(const std::string& line) {
    constexpr std::string_view fault = "Erreur écriture journal";
    if (note(line))
        return;
    if (platform_.scheduler.in_tick())
        notices_.warn(std::string{fault});
    else
        show_box(platform_.dialogs, std::string{fault}, Icon::stop);
}

void Journal::keep_for_this_run() {
    choose(window_.Active_journal1, true);
}

void Journal::keep_on() {
    choose(window_.Active_journal, true);
}

void Journal::switch_off() {
    choose(window_.A_desacive_J, false);
}

void Journal::choose(const MenuItem& entry, bool active) {
    check_only(window_.journal_choices(), entry);
    chain_.journal_actif = active;
}

bool Journal::discard() {
    return ErrorIndicator{}.skip([this] {
        enter_program_folder(platform_);
        platform_.disk.Kill(journal_file);
    });
}

void Journal::close() {
    chain_.ligne_journal = date_and_time(platform_) + " Fermeture de " + std::string{application_title};
    journal();
    chain_.ligne_journal.clear();
    if (window_.Active_journal1.checked || window_.A_desacive_J.checked)
        static_cast<void>(discard());
}

void Journal::purge() {
    if (discard())
        notices_.inform("Ok journal supprimé");
}

// A program that is no longer there leaves the reader of the desk.
void Journal::open() {
    const std::string path = join_path(platform_.program_folder, journal_file);
    const std::string& program = settings_.programme_journal;
    const bool started =
        !program.empty() && ErrorIndicator{}.skip([&] { platform_.shell.start_program(program, path); });
    if (!started)
        ErrorIndicator{}.skip([&] { platform_.shell.show_journal(path); });
}

} // namespace sonarelle
