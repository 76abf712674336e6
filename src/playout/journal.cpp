#include "playout/journal.h"

#include "platform/dialogs.h"
#include "platform/disk.h"
#include "platform/failure.h"
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
        enter_program_folder(desk_.platform);
        // An entry is one line, whatever a file is called.
        desk_.platform.disk.append(journal_file, to_windows_1252(printable(desk_.chain.ligne_journal)) + "\r\n");
    });
}

bool Journal::note(const std::string& line) {
    if (!desk_.chain.journal_actif.is_true())
        return true;
    desk_.chain.ligne_journal = line;
    const bool written = append_line();
    if (on_line)
        on_line(line);
    desk_.chain.ligne_journal.clear();
    return written;
}

// A tick of the chain doesn't wait for the operator.
void Journal::note_of_list_window(const std::string& line) {
    constexpr std::string_view fault = "Erreur écriture journal";
    if (note(line))
        return;
    if (desk_.platform.scheduler.in_tick())
        desk_.warn(std::string{fault});
    else
        show_box(desk_.platform.dialogs, std::string{fault}, Icon::stop);
}

void Journal::Active_journal1_Click() {
    choose(desk_.window.Active_journal1, true);
}

void Journal::Active_journal_Click() {
    choose(desk_.window.Active_journal, true);
}

void Journal::A_desacive_J_Click() {
    choose(desk_.window.A_desacive_J, false);
}

void Journal::choose(const MenuItem& entry, bool active) {
    check_only(desk_.window.journal_choices(), entry);
    desk_.chain.journal_actif = active;
}

bool Journal::discard() {
    return ErrorIndicator{}.skip([this] {
        enter_program_folder(desk_.platform);
        desk_.platform.disk.Kill(journal_file);
    });
}

void Journal::A_purger_journal_Click() {
    if (discard())
        desk_.inform("Ok journal supprimé");
}

void Journal::A_ouvre_journal_Click() {
    ErrorIndicator{}.skip([this] {
        enter_program_folder(desk_.platform);
        desk_.platform.shell.start_program("Write", desk_.platform.disk.absolute(journal_file));
    });
}

} // namespace sonarelle
