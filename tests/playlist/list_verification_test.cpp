#include "playlist/list_verification.h"

#include <gmock/gmock.h>

#include "playlist/file_existence.h"
#include "support/maintenance_fixture.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const std::string removed = " Non trouvé \nElément supprimé de la liste\nContinuez...";

class ListVerificationTest : public MaintenanceFixture {
protected:
    void expect_removal(std::string_view path, Answer answer = Answer::yes) {
        machine.dialogs.expect_box(std::string{path} + removed, answer);
    }
    void expect_success() { machine.dialogs.expect_box("Validation des fichiers terminé avec succés ", Answer::ok); }
};

class FileExistence : public testing::Test {
protected:
    SimulatedPlatform machine;
    [[nodiscard]] FileState state_of(std::string_view path) { return look_for_file(machine.disk, path).state; }
};

} // namespace

TEST_F(FileExistence, FindsAFileIgnoringCase) {
    machine.disk.put_file("C:\\Musique\\Titre.MP3");
    EXPECT_EQ(state_of("c:\\musique\\titre.mp3"), FileState::present);
}

TEST_F(FileExistence, TellsAMissingFileFromAMissingFolder) {
    machine.disk.put_folder("C:\\Musique");
    EXPECT_EQ(state_of("C:\\Musique\\titre.mp3"), FileState::missing);
    EXPECT_EQ(state_of("C:\\Autre\\titre.mp3"), FileState::folder_missing);
}

TEST_F(FileExistence, CountsADriveThatIsNotThereAsAMissingFile) {
    EXPECT_EQ(state_of("Q:\\titre.mp3"), FileState::missing);
}

TEST_F(FileExistence, HasNoAnswerFromADriveThatIsSilent) {
    machine.disk.put_file("D:\\titre.mp3");
    machine.disk.refuse("D:\\", FailureNumber::device_fault);
    EXPECT_THROW((void)state_of("D:\\titre.mp3"), Failure);
}

TEST_F(FileExistence, CountsAPathWithoutAFileNameAsPresent) {
    EXPECT_EQ(state_of("C:\\Nulle part\\"), FileState::present);
    EXPECT_EQ(state_of(""), FileState::present);
}

TEST_F(FileExistence, EndsTheFolderWithABackslash) {
    EXPECT_EQ(look_for_file(machine.disk, "C:\\titre.mp3").folder, "C:\\");
    EXPECT_EQ(look_for_file(machine.disk, "C:\\Musique\\titre.mp3").folder, "C:\\Musique\\");
}

TEST_F(FileExistence, FindsAFileAtTheRootOfADrive) {
    machine.disk.put_file("C:\\titre.mp3");
    EXPECT_EQ(state_of("C:\\titre.mp3"), FileState::present);
}

TEST_F(FileExistence, FindsTheOnlyFileOfAFolderThatIsHidden) {
    machine.disk.put_file("C:\\Musique\\titre.mp3");
    machine.disk.set_hidden("C:\\Musique\\titre.mp3");
    EXPECT_EQ(state_of("C:\\Musique\\titre.mp3"), FileState::missing);
}

TEST_F(FileExistence, DoesNotTakeAFolderForAFile) {
    machine.disk.put_folder("C:\\Musique\\titre.mp3");
    EXPECT_EQ(state_of("C:\\Musique\\titre.mp3"), FileState::missing);
}

TEST_F(FileExistence, DoesNotTakeAnotherFileForANameWithAWildCard) {
    machine.disk.put_file("C:\\Musique\\titre.mp3");
    EXPECT_EQ(state_of("C:\\Musique\\titr?.mp3"), FileState::missing);
}

TEST_F(FileExistence, DoesNotLookForAFileOnTheNetwork) {
    EXPECT_EQ(state_of("\\\\serveur\\partage\\titre.mp3"), FileState::on_network);
}

TEST_F(FileExistence, SaysWhatIsNoAnswer) {
    machine.disk.put_file("C:\\Musique\\titre.mp3");
    machine.disk.refuse("C:\\Musique", FailureNumber::permission_refused);
    EXPECT_THROW((void)state_of("C:\\Musique\\titre.mp3"), Failure);
}

TEST_F(ListVerificationTest, LeavesAListWhoseFilesAreThereAlone) {
    put_songs({"C:\\a.mp3", "C:\\b.mp3"});
    open_rows({"C:\\a.mp3", "C:\\b.mp3"});
    expect_success();
    list().prechar.click();
    EXPECT_THAT(paths(), ElementsAre("C:\\a.mp3", "C:\\b.mp3"));
    EXPECT_FALSE(machine.disk.exists("C:\\Sonarelle\\liste.dfm"));
}

TEST_F(ListVerificationTest, TakesOutAMissingFileAndTestsTheRowThatTookItsPlace) {
    put_songs({"C:\\c.mp3"});
    open_rows({"C:\\a.mp3", "C:\\b.mp3", "C:\\c.mp3"});
    expect_removal("C:\\a.mp3");
    expect_removal("C:\\b.mp3");
    expect_success();
    list().prechar.click();
    EXPECT_THAT(paths(), ElementsAre("C:\\c.mp3"));
    EXPECT_THAT(saved_paths(), ElementsAre("C:\\c.mp3"));
}

TEST_F(ListVerificationTest, TakesOutTheRowOfAMissingFolderWithoutLookingForTheFile) {
    put_songs({"C:\\b.mp3"});
    open_rows({"C:\\Nulle part\\a.mp3", "C:\\b.mp3"});
    station.main_window.Active_journal.click();
    expect_removal("C:\\Nulle part\\a.mp3");
    expect_success();
    list().prechar.click();
    EXPECT_THAT(paths(), ElementsAre("C:\\b.mp3"));
    EXPECT_THAT(journal(), HasSubstr("Dossier manquant : C:\\Nulle part\\ - 05/01/2026 06:00:00"));
    EXPECT_THAT(journal(), Not(HasSubstr("fichier manquant")));
}

TEST_F(ListVerificationTest, StopsAtNoAndKeepsWhatWasTakenOut) {
    put_songs({"C:\\e.mp3"});
    open_rows({"C:\\a.mp3", "C:\\b.mp3", "C:\\c.mp3", "C:\\d.mp3", "C:\\e.mp3"});
    expect_removal("C:\\a.mp3");
    expect_removal("C:\\b.mp3");
    expect_removal("C:\\c.mp3", Answer::no);
    machine.dialogs.expect_box("Mise a jour annulé/ aucun fichier de trouvé", Answer::ok);
    list().prechar.click();
    EXPECT_THAT(paths(), ElementsAre("C:\\d.mp3", "C:\\e.mp3"));
    EXPECT_THAT(saved_paths(), ElementsAre("C:\\d.mp3", "C:\\e.mp3"));
}

TEST_F(ListVerificationTest, ThatWasStoppedDoesNotSpeakOfSuccess) {
    put_songs({"C:\\a.mp3", "C:\\c.mp3"});
    open_rows({"C:\\a.mp3", "C:\\b.mp3", "C:\\c.mp3"});
    expect_removal("C:\\b.mp3", Answer::no);
    list().prechar.click();
    EXPECT_THAT(saved_paths(), ElementsAre("C:\\a.mp3", "C:\\c.mp3"));
    EXPECT_FALSE(window().visible);
}

TEST_F(ListVerificationTest, SaysWhenNoFileWasFound) {
    open_rows({"C:\\a.mp3"});
    expect_removal("C:\\a.mp3");
    machine.dialogs.expect_box("Mise a jour annulé/ aucun fichier de trouvé", Answer::ok);
    list().prechar.click();
    EXPECT_EQ(rows().count(), 0);
}

TEST_F(ListVerificationTest, NotesAMissingFileInTheJournal) {
    open_rows({"C:\\a.mp3"});
    station.main_window.Active_journal.click();
    expect_removal("C:\\a.mp3");
    machine.dialogs.expect_box("aucun fichier de trouvé", Answer::ok);
    list().prechar.click();
    EXPECT_THAT(journal(), HasSubstr("fichier manquant : C:\\a.mp3 - 05/01/2026 06:00:00"));
}

TEST_F(ListVerificationTest, ShowsEachFileWhileItGoesOn) {
    put_songs({"C:\\a.mp3", "C:\\b.mp3"});
    open_rows({"C:\\a.mp3", "C:\\b.mp3"});
    watch_progress();
    expect_success();
    list().prechar.click();
    EXPECT_THAT(progress(), ElementsAre("fichier Ok : C:\\a.mp3", "fichier Ok : C:\\b.mp3"));
    EXPECT_EQ(window().bar.maximum.get(), 2);
    EXPECT_FALSE(window().visible);
}

TEST_F(ListVerificationTest, KeepsARowOnTheNetwork) {
    open_rows({"\\\\serveur\\partage\\a.mp3"});
    expect_success();
    list().prechar.click();
    EXPECT_EQ(rows().count(), 1);
}

TEST_F(ListVerificationTest, TellsAnErrorAndKeepsTheRow) {
    put_songs({"C:\\Musique\\b.mp3"});
    open_rows({"C:\\a.mp3", "C:\\Musique\\b.mp3"});
    machine.disk.refuse("C:\\Musique", FailureNumber::permission_refused);
    expect_removal("C:\\a.mp3");
    machine.dialogs.expect_box(" err N° 70 ", Answer::ok);
    list().prechar.click();
    EXPECT_THAT(paths(), ElementsAre("C:\\Musique\\b.mp3"));
    EXPECT_THAT(saved_paths(), ElementsAre("C:\\Musique\\b.mp3"));
    EXPECT_FALSE(window().visible);
}

TEST_F(ListVerificationTest, KeepsTheRowsOfADriveThatIsSilent) {
    put_songs({"D:\\a.mp3", "D:\\b.mp3"});
    open_rows({"D:\\a.mp3", "D:\\b.mp3"});
    machine.disk.refuse("D:\\", FailureNumber::device_fault);
    machine.dialogs.expect_box(" err N° 57 ", Answer::ok);
    list().prechar.click();
    EXPECT_EQ(rows().count(), 2);
}

TEST_F(ListVerificationTest, LeavesTheOldListWhenTheDiskIsFull) {
    put_songs({"C:\\b.mp3"});
    open_rows({"C:\\a.mp3", "C:\\b.mp3"});
    machine.disk.put_file("C:\\Sonarelle\\liste.dfm", bytes_of(record_of("C:\\vieux.mp3")));
    machine.disk.set_capacity(machine.disk.used());
    expect_removal("C:\\a.mp3");
    machine.dialogs.expect_box("liste.dfm", Answer::ok);
    expect_success();
    list().prechar.click();
    EXPECT_THAT(saved_paths(), ElementsAre("C:\\vieux.mp3"));
}

TEST_F(ListVerificationTest, IsRefusedWhenModificationsAreNotSaved) {
    open_rows({"C:\\a.mp3"});
    list().a_Ne_pas_Sauve.click();
    machine.dialogs.expect_box("Traitement impossible avec l'option\nNe pas sauver les modifications dans le fichier "
                               "par défaut\nSauvegarder cette liste",
                               Answer::ok);
    list().prechar.click();
    EXPECT_EQ(rows().count(), 1);
    EXPECT_EQ(machine.dialogs.last().icon, Icon::information);
}

TEST_F(ListVerificationTest, OfAnEmptyTableSaysNothing) {
    open_list(matin, {});
    list().prechar.click();
    EXPECT_EQ(list().mouse_pointer.get(), 0);
}

TEST_F(ListVerificationTest, KeepsThePlayingRowInStep) {
    put_songs({"C:\\b.mp3", "C:\\c.mp3"});
    open_rows({"C:\\a.mp3", "C:\\b.mp3", "C:\\c.mp3"});
    station.list.ligne_en_lecture = 3;
    expect_removal("C:\\a.mp3");
    expect_success();
    list().prechar.click();
    EXPECT_EQ(station.list.ligne_en_lecture, 2);
}

TEST_F(ListVerificationTest, ShowsTheBusyPointerMeanwhile) {
    open_rows({"C:\\a.mp3"});
    int pointer = 0;
    machine.dialogs.on_answered = [&](const Question&) { pointer = std::max(pointer, list().mouse_pointer.get()); };
    expect_removal("C:\\a.mp3");
    machine.dialogs.expect_box("aucun fichier de trouvé", Answer::ok);
    list().prechar.click();
    EXPECT_EQ(pointer, 11);
    EXPECT_EQ(list().mouse_pointer.get(), 0);
}

TEST_F(ListVerificationTest, EndsAtOnceWhenItsWindowIsClosed) {
    put_songs({"C:\\lent\\a.mp3", "C:\\lent\\b.mp3"});
    open_rows({"C:\\lent\\a.mp3", "C:\\lent\\b.mp3"});
    machine.disk.take("C:\\lent", seconds(1));
    machine.time.at(machine.time.now() + milliseconds(500), [this] { window().ask_to_close(); });
    watch_progress();
    list().prechar.click();
    EXPECT_THAT(progress(), ElementsAre("fichier Ok : C:\\lent\\a.mp3"));
    EXPECT_EQ(rows().count(), 2);
}

TEST_F(ListVerificationTest, LetsTheClockTickMeanwhile) {
    put_songs({"C:\\lent\\a.mp3"});
    open_rows({"C:\\lent\\a.mp3"});
    machine.disk.take("C:\\lent", seconds(2));
    int ticks = 0;
    Timer clock{"horloge", 20, machine.scheduler};
    clock.on_tick = [&] { ++ticks; };
    clock.set_interval(1000);
    clock.enable();
    expect_success();
    list().prechar.click();
    EXPECT_GE(ticks, 2);
}

TEST_F(ListVerificationTest, NeverTakesOutARowForAnotherAfterAFailedSave) {
    put_songs({"C:\\b.mp3", "C:\\c.mp3"});
    open_rows({"C:\\a.mp3", "C:\\b.mp3", "C:\\c.mp3"});
    machine.disk.set_capacity(machine.disk.used());
    expect_removal("C:\\a.mp3");
    machine.dialogs.expect_box("liste.dfm", Answer::ok);
    expect_success();
    list().prechar.click();
    expect_success();
    list().prechar.click();
    EXPECT_THAT(paths(), ElementsAre("C:\\b.mp3", "C:\\c.mp3"));
}

TEST_F(ListVerificationTest, TakesOutNoOtherRowWhenTheListChangesDuringTheWarning) {
    put_songs({"C:\\b.mp3"});
    open_list(matin, {record_of("C:\\a.mp3", "200.00", 0), record_of("C:\\b.mp3")});
    expect_removal("C:\\a.mp3");
    machine.dialogs.expect_window("err_form", [this] {
        if (rows().text(1) == "C:\\a.mp3")
            rows().remove(1);
    });
    expect_success();
    list().prechar.click();
    EXPECT_THAT(paths(), ElementsAre("C:\\b.mp3"));
}

TEST_F(ListVerificationTest, LeavesNoRowOutWhenOneGoesDuringTheQuestion) {
    put_songs({"C:\\a.mp3", "C:\\d.mp3"});
    open_rows({"C:\\a.mp3", "C:\\b.mp3", "C:\\c.mp3", "C:\\d.mp3"});
    machine.dialogs.on_answered = [this](const Question& question) {
        if (question.text.starts_with("C:\\b.mp3"))
            rows().remove(1);
    };
    expect_removal("C:\\b.mp3");
    expect_removal("C:\\c.mp3");
    expect_success();
    list().prechar.click();
    EXPECT_THAT(paths(), ElementsAre("C:\\d.mp3"));
}

TEST_F(ListVerificationTest, OfOneFileSaysThatItIsThere) {
    put_songs({"C:\\a.mp3"});
    open_rows({"C:\\a.mp3", "C:\\b.mp3"});
    machine.dialogs.expect_box("Fichier : C:\\a.mp3 Ok ", Answer::ok);
    list().prechar_fich.click();
    EXPECT_EQ(rows().count(), 2);
}

TEST_F(ListVerificationTest, OfOneFileTakesOutTheSelectedRowAlone) {
    open_rows({"C:\\a.mp3", "C:\\b.mp3"});
    rows().select(2);
    expect_removal("C:\\b.mp3");
    list().prechar_fich.click();
    EXPECT_THAT(saved_paths(), ElementsAre("C:\\a.mp3"));
}

TEST_F(ListVerificationTest, OfOneFileNamesAMissingFolder) {
    open_rows({"C:\\Nulle part\\a.mp3"});
    machine.dialogs.expect_box("Dossier : C:\\Nulle part\\" + removed, Answer::yes);
    list().prechar_fich.click();
    EXPECT_EQ(rows().count(), 0);
}

TEST_F(ListVerificationTest, OfOneFileIsRefusedWhenModificationsAreNotSaved) {
    open_rows({"C:\\a.mp3"});
    list().a_Ne_pas_Sauve.click();
    machine.dialogs.expect_box("Traitement impossible avec l'option", Answer::ok);
    list().prechar_fich.click();
    EXPECT_EQ(rows().count(), 1);
}

TEST_F(ListVerificationTest, HasItsCaptions) {
    EXPECT_EQ(list().prechar.caption.get(), "Tester l'existance des fichiers de cette liste");
    EXPECT_EQ(list().prechar_fich.caption.get(), "Tester l'existance du fichier");
    EXPECT_EQ(window().caption.get(), "Traitement en cours");
}

} // namespace sonarelle
