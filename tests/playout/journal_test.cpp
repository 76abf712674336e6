#include "playout/journal.h"

#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

class JournalTest : public ChainFixture {
protected:
    [[nodiscard]] bool is_written() const { return machine.disk.exists("C:\\Sonarelle\\journal.doc"); }
    [[nodiscard]] std::vector<bool> checks() {
        std::vector<bool> checked;
        for (const MenuItem* entry : station.main_window.journal_choices())
            checked.push_back(entry->checked);
        return checked;
    }
    [[nodiscard]] bool has(std::string_view line) const {
        return journal_text().find(std::string{line} + "\r\n") != std::string::npos;
    }
};

} // namespace

TEST_F(JournalTest, IsOffAtFirst) {
    EXPECT_EQ(checks(), (std::vector<bool>{false, false, true}));
    open_tracks({100, 100});
    start_list();
    machine.run_for(seconds(100));
    EXPECT_FALSE(is_written());
}

TEST_F(JournalTest, WritesALineForWhoeverAsksAlsoWhileItIsOff) {
    station.chain.ligne_journal = "05/01/2026 - 06:00:00 Exécution de Sonarelle";
    station.journal.journal();
    EXPECT_EQ(journal_text(), "05/01/2026 - 06:00:00 Ex\xE9"
                              "cution de Sonarelle\r\n");
}

TEST_F(JournalTest, WritesAnEntryOnOneLineWhateverAFileIsCalled) {
    station.chain.ligne_journal = "Lecture de C:\\a\r\n05/01/2026 - 06:00:00 faux\x1B.mp3";
    station.journal.journal();
    EXPECT_EQ(journal_text(), "Lecture de C:\\a\xB7\xB7"
                              "05/01/2026 - 06:00:00 faux\xB7.mp3\r\n");
}

TEST_F(JournalTest, OfTheListWindowTellsTheOperatorThatItCantBeWritten) {
    station.main_window.Active_journal.click();
    machine.disk.refuse("C:\\Sonarelle\\journal.doc", FailureNumber::permission_refused);
    machine.dialogs.expect_box("Erreur écriture journal", Answer::ok);
    station.list_window.stop_decks.click();
    EXPECT_EQ(machine.dialogs.last().icon, Icon::stop);
}

TEST_F(JournalTest, EntriesOfTheMenuExcludeEachOther) {
    station.main_window.Active_journal1.click();
    EXPECT_EQ(checks(), (std::vector<bool>{true, false, false}));
    station.main_window.Active_journal.click();
    EXPECT_EQ(checks(), (std::vector<bool>{false, true, false}));
    station.main_window.A_desacive_J.click();
    EXPECT_EQ(checks(), (std::vector<bool>{false, false, true}));
}

TEST_F(JournalTest, IsSilentAgainOnceItIsSwitchedOff) {
    station.main_window.Active_journal.click();
    station.main_window.A_desacive_J.click();
    open_tracks({100, 100});
    start_list();
    EXPECT_FALSE(is_written());
}

TEST_F(JournalTest, WritesIntoTheProgramFolderWhateverTheCurrentOne) {
    station.main_window.Active_journal1.click();
    open_tracks({100, 100});
    machine.disk.ChDir("C:\\Musique");
    start_list();
    EXPECT_TRUE(is_written());
}

TEST_F(JournalTest, HasTheStartOfAListAndItsTracks) {
    station.main_window.Active_journal1.click();
    open_tracks({100, 100});
    start_list();
    machine.run_for(seconds(95));
    EXPECT_TRUE(has("05/01/2026 - 06:00:00 Liste - Lecture fin de piste d\xE9"
                    "finie"));
    EXPECT_TRUE(has(" D\xE9mmarage lecture liste a 06:00:00"));
    EXPECT_TRUE(has("06:00:00 Lecture de " + track(1)));
    EXPECT_TRUE(has("Nb_de_fichier_\xE9"
                    "cout\xE9 1"));
    EXPECT_TRUE(has("06:01:34 Lecture de " + track(2) + " (2)"));
}

TEST_F(JournalTest, HasTheStopOfAList) {
    station.main_window.Active_journal1.click();
    open_tracks({100, 100});
    start_list();
    machine.run_for(seconds(7));
    station.list_window.stop_decks.click();
    EXPECT_TRUE(has(" Arr\xE9t lecture liste a 05/01/2026 - 06:00:07"));
}

TEST_F(JournalTest, HasTheZap) {
    station.main_window.Active_journal1.click();
    open_tracks({100, 100});
    start_list();
    machine.run_for(seconds(40));
    station.list_window.zap.click();
    EXPECT_TRUE(has("05/01/2026 - 06:00:40 ZAPPING sur ----> : " + track(2)));
}

TEST_F(JournalTest, HasTheReadingModes) {
    station.main_window.Active_journal1.click();
    station.list_window.defined_end_mode.click();
    station.list_window.full_length_mode.click();
    station.list_window.player_mode.click();
    EXPECT_TRUE(has("05/01/2026 - 06:00:00 Liste - Lecture dur\xE9"
                    "e piste"));
    EXPECT_TRUE(has("05/01/2026 - 06:00:00 Lecteur - Lecture continue auto"));
}

TEST_F(JournalTest, HasAFileThatWasRemoved) {
    station.main_window.Active_journal1.click();
    open_tracks({100, 100, 100});
    machine.disk.Kill(track(2));
    start_list();
    machine.run_for(seconds(90));
    EXPECT_TRUE(has("05/01/2026 - 06:01:27 fichier : " + track(2) + " Non trouv\xE9 ou non valide"));
}

TEST_F(JournalTest, PurgeDeletesItAndSaysSo) {
    machine.disk.put_file("C:\\Sonarelle\\journal.doc", "x");
    machine.dialogs.expect_box("Ok journal supprimé", Answer::ok);
    station.main_window.A_purger_journal.click();
    EXPECT_FALSE(is_written());
}

TEST_F(JournalTest, PurgeFindsItInTheProgramFolderWhateverTheCurrentOne) {
    machine.disk.put_file("C:\\Sonarelle\\journal.doc", "x");
    machine.disk.put_folder("C:\\Musique");
    machine.disk.ChDir("C:\\Musique");
    machine.dialogs.expect_box("Ok journal supprimé", Answer::ok);
    station.main_window.A_purger_journal.click();
    EXPECT_FALSE(is_written());
}

TEST_F(JournalTest, PurgeWithoutAFileSaysNothing) {
    station.main_window.A_purger_journal.click();
    EXPECT_TRUE(machine.dialogs.asked().empty());
}

TEST_F(JournalTest, OpensInTheReaderOfTheDeskWhateverTheCurrentFolder) {
    machine.disk.put_folder("C:\\Musique");
    machine.disk.ChDir("C:\\Musique");
    station.main_window.A_ouvre_journal.click();
    EXPECT_EQ(machine.shell.journals_shown, std::vector<std::string>{"C:\\Sonarelle\\journal.doc"});
    EXPECT_TRUE(machine.shell.started.empty());
}

TEST_F(JournalTest, OpensInTheOperatorsOwnProgramWhereHeHasSetOne) {
    machine.settings.SaveSetting(settings_application, "Config", "Programme_journal", "Write");
    station.settings_load.Chargement_parametres();
    station.main_window.A_ouvre_journal.click();
    EXPECT_EQ(machine.shell.started, (std::vector<SimulatedShell::Start>{{"Write", "C:\\Sonarelle\\journal.doc"}}));
    EXPECT_TRUE(machine.shell.journals_shown.empty());
}

TEST_F(JournalTest, OpensInTheReaderOfTheDeskWhereTheOperatorsProgramIsMissing) {
    station.settings.programme_journal = "Write";
    machine.shell.has_programs = false;
    station.main_window.A_ouvre_journal.click();
    EXPECT_EQ(machine.shell.journals_shown, std::vector<std::string>{"C:\\Sonarelle\\journal.doc"});
}

TEST_F(JournalTest, ThatCannotBeWrittenHoldsNothingUp) {
    station.main_window.Active_journal1.click();
    machine.disk.put_file("C:\\Sonarelle\\journal.doc", "x");
    machine.disk.set_read_only("C:\\Sonarelle\\journal.doc");
    open_tracks({100, 100});
    machine.dialogs.expect_box("Erreur écriture journal", Answer::ok);
    start_list();
    machine.run_for(seconds(95));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2}));
}

} // namespace sonarelle
