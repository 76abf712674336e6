#include "playlist/list_save_dialog.h"

#include "support/station_fixture.h"

namespace sonarelle {

namespace {

constexpr std::string_view matin = "C:\\Listes\\matin.dfm";
constexpr std::string_view soir = "C:\\Listes\\soir.dfm";

class ListSaveDialogTest : public StationFixture {
protected:
    void save_as(std::string_view name) {
        machine.dialogs.expect_save(name);
        station.list_window.A_enreg_sous.click();
    }
};

} // namespace

TEST_F(ListSaveDialogTest, SaysThatThereIsNothingToSave) {
    machine.dialogs.expect_box("Rien a sauvegarder !", Answer::ok);
    station.list_window.A_enreg_sous.click();
    EXPECT_EQ(machine.dialogs.last().icon, Icon::warning);
}

TEST_F(ListSaveDialogTest, OffersTheLoadedListsName) {
    open_list(matin, {record_of("a")});
    save_as("");
    EXPECT_EQ(machine.dialogs.last().title, "Enregistrer sous");
    EXPECT_EQ(machine.dialogs.last().text, matin);
    EXPECT_EQ(machine.dialogs.last().filter, "fichier liste (*.dfm)|*.dfm");
}

TEST_F(ListSaveDialogTest, WritesTheRowsUnderTheNewName) {
    open_list(matin, {record_of("a"), record_of("b")});
    save_as(soir);
    EXPECT_EQ(machine.disk.bytes(soir), bytes_of({record_of("a"), record_of("b")}));
}

TEST_F(ListSaveDialogTest, StoresTheNameInLowerCase) {
    open_list(matin, {record_of("a")});
    save_as("C:\\Listes\\ÉTÉ.DFM");
    EXPECT_EQ(station.list.fichier_liste, "c:\\listes\\été.dfm");
    EXPECT_EQ(machine.disk.bytes("C:\\Listes\\été.dfm"), bytes_of(record_of("a")));
}

TEST_F(ListSaveDialogTest, SavesNothingWithoutTheRightEnding) {
    open_list(matin, {record_of("a")});
    save_as("C:\\Listes\\soir.txt");
    EXPECT_FALSE(machine.disk.exists("C:\\Listes\\soir.txt"));
    EXPECT_EQ(station.list.fichier_liste, matin);
}

TEST_F(ListSaveDialogTest, CallsTheWindowsFileByTheDefaultListAfterAnEmptyName) {
    open_list(matin, {record_of("a")});
    save_as("");
    EXPECT_EQ(station.list.nom_fichier, "liste.dfm");
}

TEST_F(ListSaveDialogTest, SavesNothingWhenItIsCancelled) {
    open_list(matin, {record_of("a")});
    machine.dialogs.expect_cancel();
    station.list_window.A_enreg_sous.click();
    EXPECT_EQ(station.list.fichier_liste, matin);
}

TEST_F(ListSaveDialogTest, AsksBeforeItOverwritesWithNoAsTheDefault) {
    machine.disk.put_file(soir, "ancien");
    open_list(matin, {record_of("a")});
    machine.dialogs.expect_save(soir);
    machine.dialogs.expect_box(Answer::no);
    station.list_window.A_enreg_sous.click();
    EXPECT_EQ(machine.dialogs.last().text,
              "Attention le fichier : c:\\listes\\soir.dfm existe \nil va ètre écrasé !\nContinuer ?");
    EXPECT_EQ(machine.dialogs.last().buttons, Buttons::yes_no);
    EXPECT_EQ(machine.dialogs.last().default_button, 2);
    EXPECT_EQ(machine.dialogs.last().icon, Icon::stop);
}

TEST_F(ListSaveDialogTest, AsksBeforeItOverwritesAHiddenList) {
    machine.disk.put_file(soir, "ancien");
    machine.disk.set_hidden(soir);
    open_list(matin, {record_of("a")});
    machine.dialogs.expect_save(soir);
    machine.dialogs.expect_box("existe", Answer::no);
    station.list_window.A_enreg_sous.click();
    EXPECT_EQ(machine.disk.bytes(soir), "ancien");
}

TEST_F(ListSaveDialogTest, KeepsTheFileThatExistsOnNo) {
    machine.disk.put_file(soir, "ancien");
    open_list(matin, {record_of("a")});
    machine.dialogs.expect_save(soir);
    machine.dialogs.expect_box(Answer::no);
    station.list_window.A_enreg_sous.click();
    EXPECT_EQ(machine.disk.bytes(soir), "ancien");
}

TEST_F(ListSaveDialogTest, IsCalledByTheNewNameEvenOnNo) {
    machine.disk.put_file(soir, "ancien");
    open_list(matin, {record_of("a")});
    machine.dialogs.expect_save(soir);
    machine.dialogs.expect_box(Answer::no);
    station.list_window.A_enreg_sous.click();
    EXPECT_EQ(station.list.fichier_liste, "c:\\listes\\soir.dfm");
}

TEST_F(ListSaveDialogTest, NamesTheRowThatCannotBeConverted) {
    open_list(matin, {record_of("a"), record_of("b")});
    rows().set_sub_item(2, 4, "");
    machine.dialogs.expect_save(soir);
    machine.dialogs.expect_box("ligne 2", Answer::ok);
    station.list_window.A_enreg_sous.click();
    EXPECT_FALSE(machine.disk.exists(soir));
}

TEST_F(ListSaveDialogTest, ReplacesTheFileThatExistsOnYes) {
    machine.disk.put_file(soir, "ancien");
    open_list(matin, {record_of("a")});
    machine.dialogs.expect_save(soir);
    machine.dialogs.expect_box(Answer::yes);
    station.list_window.A_enreg_sous.click();
    EXPECT_EQ(machine.disk.bytes(soir), bytes_of(record_of("a")));
}

TEST_F(ListSaveDialogTest, PutsAnXWhereADurationIsMissing) {
    open_list(matin, {record_of("a", "1", 100, 0.1, "Rock", "")});
    save_as(soir);
    EXPECT_EQ(rows().sub_item(1, 5), "X");
    EXPECT_EQ(record_in(machine.disk.bytes(soir), 1).duree_piste(), "X       ");
}

TEST_F(ListSaveDialogTest, LeavesAnEmptyGenreEmpty) {
    open_list(matin, {record_of("a", "1", 100, 0.1, "")});
    save_as(soir);
    EXPECT_EQ(rows().sub_item(1, 3), "");
}

TEST_F(ListSaveDialogTest, TellsOfACellThatCannotBeConvertedAndKeepsTheOldFile) {
    machine.disk.put_file(soir, "ancien");
    open_list(matin, {record_of("a")});
    rows().set_sub_item(1, 1, "deux");
    machine.dialogs.expect_save(soir);
    machine.dialogs.expect_box("existe", Answer::yes);
    machine.dialogs.expect_box("deux : Type incompatible", Answer::ok);
    station.list_window.A_enreg_sous.click();
    EXPECT_EQ(machine.disk.bytes(soir), "ancien");
}

TEST_F(ListSaveDialogTest, TellsOfAFullDiskAndKeepsTheOldFile) {
    machine.disk.put_file(soir, "ancien");
    open_list(matin, {record_of("a")});
    machine.disk.set_capacity(machine.disk.used() + 417);
    machine.dialogs.expect_save(soir);
    machine.dialogs.expect_box("existe", Answer::yes);
    machine.dialogs.expect_box("Disque plein", Answer::ok);
    station.list_window.A_enreg_sous.click();
    EXPECT_EQ(machine.disk.bytes(soir), "ancien");
}

TEST_F(ListSaveDialogTest, SetsTheSavePolicyAndNamesTheList) {
    open_list(matin, {record_of("a")});
    station.list_window.a_Ne_pas_Sauve.click();
    save_as(soir);
    EXPECT_TRUE(station.list_window.A_sauve.checked);
    EXPECT_FALSE(station.list_window.a_Ne_pas_Sauve.checked);
    EXPECT_TRUE(station.list_window.A_ecoute.enabled);
    EXPECT_EQ(station.list_window.caption.get(), "Fichier liste : c:\\listes\\soir.dfm");
    EXPECT_EQ(station.list.nom_sauvegarde, "c:\\listes\\soir.dfm");
}

TEST_F(ListSaveDialogTest, OpensFromTheButtonAlike) {
    open_list(matin, {record_of("a")});
    machine.dialogs.expect_save(soir);
    station.list_window.save_as.click();
    EXPECT_TRUE(machine.disk.exists(soir));
}

} // namespace sonarelle
