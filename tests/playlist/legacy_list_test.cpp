#include "playlist/legacy_list.h"

#include "support/station_fixture.h"

namespace sonarelle {

namespace {

constexpr std::string_view old_list = "C:\\Listes\\vieux.rfm";

std::string field(std::string text, std::size_t width) {
    text.resize(width, ' ');
    return text;
}

std::string old_record(const std::string& path, const std::string& end = "200", const std::string& genre = "Rock",
                       const std::string& duration = "00:03:20") {
    return field(path, 200) + field(end, 100) + field(genre, 100) + std::string("\x50\0", 2) + field(duration, 8);
}

class LegacyListTest : public StationFixture {
protected:
    /// Opens an old list and cancels the saving that follows at once.
    void open_old_list(const std::string& bytes) {
        machine.disk.put_file(old_list, bytes);
        machine.dialogs.expect_open(old_list);
        if (bytes.size() >= 410)
            machine.dialogs.expect_cancel();
        else
            machine.dialogs.expect_box("Rien a sauvegarder !", Answer::ok);
        station.list_window.A_Copen_rfm.click();
    }
};

} // namespace

TEST_F(LegacyListTest, ShowsARecordWithTheStartThatEveryNewRowGets) {
    open_old_list(old_record("C:\\a.mp3"));
    EXPECT_EQ(rows().row(1), (RowTable::Row{"C:\\a.mp3", "0.10", "200.00", "Rock", "80", "00:03:20"}));
}

TEST_F(LegacyListTest, Of409BytesGivesNoRow) {
    open_old_list(std::string(409, 'x'));
    EXPECT_EQ(rows().count(), 0);
}

TEST_F(LegacyListTest, IsAppendedToTheRows) {
    open_list("C:\\Listes\\matin.dfm", {record_of("a")});
    station.list.nom_sauvegarde.clear();
    open_old_list(old_record("b"));
    EXPECT_EQ(rows().count(), 2);
}

TEST_F(LegacyListTest, IsOfferedForSavingInTheNewForm) {
    open_old_list(old_record("a"));
    EXPECT_EQ(machine.dialogs.last().kind, QuestionKind::save_file);
    EXPECT_EQ(machine.dialogs.last().text, "C:\\Listes\\vieux.dfm");
}

TEST_F(LegacyListTest, KeepsItsNameWhenTheSavingIsCancelled) {
    open_old_list(old_record("a"));
    EXPECT_EQ(station.list.fichier_liste, old_list);
    EXPECT_EQ(rows().count(), 1);
}

TEST_F(LegacyListTest, IsSavedAsAListOfTheNewForm) {
    machine.disk.put_file("C:\\a.mp3");
    machine.disk.put_file(old_list, old_record("C:\\a.mp3"));
    machine.dialogs.expect_open(old_list);
    machine.dialogs.expect_save("C:\\Listes\\vieux.dfm");
    machine.dialogs.expect_box("Validation des fichiers terminé avec succés ", Answer::ok);
    station.list_window.A_Copen_rfm.click();
    EXPECT_EQ(machine.disk.bytes("C:\\Listes\\vieux.dfm"), bytes_of(record_of("C:\\a.mp3", "200.00", 80)));
}

TEST_F(LegacyListTest, AsksForTheFileWithItsOwnPattern) {
    machine.disk.put_file(old_list, "");
    machine.dialogs.expect_cancel();
    station.list_window.A_Copen_rfm.click();
    EXPECT_EQ(machine.dialogs.last().text, "*.rfm");
    EXPECT_EQ(machine.dialogs.last().filter, "fichier (*.rfm)|*.rfm");
}

TEST_F(LegacyListTest, AsksAgainAfterACancelledDialog) {
    machine.dialogs.expect_cancel();
    station.list_window.A_Copen_rfm.click();
    machine.dialogs.expect_cancel();
    station.list_window.A_Copen_rfm.click();
    EXPECT_EQ(machine.dialogs.asked().size(), 2U);
}

TEST_F(LegacyListTest, KeepsTheRowsReadBeforeTheDiskBroke) {
    machine.disk.put_file(old_list, old_record("a") + old_record("b"));
    machine.disk.fail_read_at(old_list, 410);
    machine.dialogs.expect_open(old_list);
    station.list_window.A_Copen_rfm.click();
    EXPECT_EQ(rows().count(), 1);
}

TEST_F(LegacyListTest, IsNeverWritten) {
    machine.disk.put_file(old_list, old_record("a"));
    station.list.sans_test_existence = true;
    machine.dialogs.expect_open(old_list);
    machine.dialogs.expect_save("C:\\Listes\\vieux.dfm");
    station.list_window.A_Copen_rfm.click();
    EXPECT_EQ(machine.disk.bytes(old_list), old_record("a"));
}

TEST_F(LegacyListTest, EnablesWhatNeedsAList) {
    open_old_list(old_record("a"));
    EXPECT_TRUE(station.list_window.prechar.enabled);
}

TEST_F(LegacyListTest, AsksForTheFileWhenAListOfTheNewFormIsLoaded) {
    open_list("C:\\Listes\\matin.dfm", {record_of("a")});
    machine.dialogs.expect_cancel();
    station.list_window.A_Copen_rfm.click();
    EXPECT_EQ(machine.dialogs.last().text, "*.rfm");
    EXPECT_EQ(rows().count(), 1);
}

TEST_F(LegacyListTest, OfAnotherNameIsReadOnlyAfterAQuestionThatNamesIt) {
    machine.disk.put_file("C:\\Listes\\matin.dfm", bytes_of(record_of("a")));
    machine.dialogs.expect_open("C:\\Listes\\matin.dfm");
    machine.dialogs.expect_box("C:\\Listes\\matin.dfm", Answer::no);
    station.list_window.A_Copen_rfm.click();
    EXPECT_EQ(machine.dialogs.last().default_button, 2);
    EXPECT_EQ(rows().count(), 0);
    EXPECT_EQ(station.list.nom_sauvegarde, "");
}

TEST_F(LegacyListTest, OfAnotherNameIsReadWhenTheOperatorWantsIt) {
    machine.disk.put_file("C:\\Listes\\vieux.old", old_record("a"));
    machine.dialogs.expect_open("C:\\Listes\\vieux.old");
    machine.dialogs.expect_box("C:\\Listes\\vieux.old", Answer::yes);
    machine.dialogs.expect_cancel();
    station.list_window.A_Copen_rfm.click();
    EXPECT_EQ(rows().count(), 1);
}

TEST_F(LegacyListTest, StandsInTheMenuOfTheConversions) {
    const auto& entries = station.list_window.Convertion.entries();
    EXPECT_EQ(entries, (std::vector{&station.list_window.A_Copen_rfm, &station.list_window.A_Convertir_dfm}));
}

TEST_F(LegacyListTest, TakesTheSaveNameThatIsWaiting) {
    machine.disk.put_file(old_list, old_record("a"));
    station.list.nom_sauvegarde = old_list;
    machine.dialogs.expect_cancel();
    station.list_window.A_Copen_rfm.click();
    EXPECT_EQ(rows().count(), 1);
}

TEST_F(LegacyListTest, IsMisreadWhenItIsOneOfTheNewForm) {
    machine.disk.put_file("C:\\Listes\\matin.dfm", bytes_of({record_of("C:\\a.mp3"), record_of("C:\\b.mp3")}));
    machine.dialogs.expect_open("C:\\Listes\\matin.dfm");
    machine.dialogs.expect_box("C:\\Listes\\matin.dfm", Answer::yes);
    machine.dialogs.expect_cancel();
    station.list_window.A_Copen_rfm.click();
    EXPECT_EQ(rows().text(1), "C:\\a.mp3");
    EXPECT_EQ(rows().text(2), "00:03:20C:\\b.mp3");
}

TEST_F(LegacyListTest, SaysWhatIsLoaded) {
    open_old_list(old_record("a"));
    EXPECT_EQ(station.list_window.list_status.caption.get(), "Lecture en attente .. Nb : 1");
    EXPECT_EQ(station.list_window.caption.get(), "Fichier liste : C:\\Listes\\vieux.rfm");
}

TEST_F(LegacyListTest, IsTestedForMissingFilesOnceItIsSaved) {
    machine.disk.put_file("C:\\b.mp3");
    machine.disk.put_file(old_list, old_record("C:\\a.mp3") + old_record("C:\\b.mp3"));
    machine.dialogs.expect_open(old_list);
    machine.dialogs.expect_save("C:\\Listes\\vieux.dfm");
    machine.dialogs.expect_box("C:\\a.mp3 Non trouvé ", Answer::yes);
    machine.dialogs.expect_box("Validation des fichiers terminé avec succés ", Answer::ok);
    station.list_window.A_Copen_rfm.click();
    EXPECT_EQ(rows().count(), 1);
}

TEST_F(LegacyListTest, LoadedButNotSavedIsOfferedAgain) {
    open_old_list(old_record("a"));
    station.list.nom_sauvegarde = old_list;
    machine.dialogs.expect_save("C:\\Listes\\vieux.dfm");
    station.list_window.A_Convertir_dfm.click();
    EXPECT_EQ(machine.dialogs.last().text, "C:\\Listes\\vieux.dfm");
}

TEST_F(LegacyListTest, IsNotOfferedUnderANameOfFewerThanFourCharacters) {
    open_list("C:\\Listes\\matin.dfm", {record_of("a")});
    station.list.nom_sauvegarde = "abc";
    station.list_window.A_Convertir_dfm.click();
    EXPECT_EQ(machine.dialogs.asked().size(), 1U);
}

} // namespace sonarelle
