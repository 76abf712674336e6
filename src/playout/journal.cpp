#include "playout/journal.h"

#include "platform/disk.h"
#include "platform/failure.h"
#include "platform/shell.h"
#include "platform/text.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

constexpr std::string_view journal_file = "journal.doc";

} // namespace

void Journal::journal() {
    ErrorIndicator{}.skip([this] {
        enter_program_folder(desk_.platform);
        desk_.platform.disk.append(journal_file, to_windows_1252(desk_.chain.ligne_journal) + "\r\n");
    });
}

void Journal::note(const std::string& line) {
    if (!desk_.chain.journal_actif.is_true())
        return;
    desk_.chain.ligne_journal = line;
    journal();
    if (on_line)
        on_line(line);
    desk_.chain.ligne_journal.clear();
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

void Journal::A_purger_journal_Click() {
    const bool deleted = ErrorIndicator{}.skip([this] {
        enter_program_folder(desk_.platform);
        desk_.platform.disk.Kill(journal_file);
    });
    if (deleted)
        desk_.inform("Ok journal supprimé");
}

void Journal::A_ouvre_journal_Click() {
    ErrorIndicator{}.skip([this] {
        enter_program_folder(desk_.platform);
        desk_.platform.shell.start_program("Write", desk_.platform.disk.absolute(journal_file));
    });
}

} // namespace sonarelle
