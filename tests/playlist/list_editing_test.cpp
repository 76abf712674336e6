// What the operator does to a row of the list: cut, copy, paste, remove.
#include <gmock/gmock.h>

#include "playlist/edited_list_fixture.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;

class ListEditingTest : public EditedList {};

} // namespace

TEST_F(ListEditingTest, ACutRowLeavesTheListAndItsFile) {
    open_rows({"a", "b", "c"}, 2);
    list.Couper_.click();
    EXPECT_THAT(paths(), ElementsAre("a", "c"));
    EXPECT_THAT(saved_paths(), ElementsAre("a", "c"));
    EXPECT_EQ(station.list.index_supprime, 2);
}

TEST_F(ListEditingTest, CuttingTheOnlyRowEndsTheListModes) {
    open_rows({"a"}, 1);
    list.full_length_mode.set_value(true);
    list.Couper_.click();
    EXPECT_EQ(rows().count(), 0);
    EXPECT_TRUE(list.player_mode.value());
}

TEST_F(ListEditingTest, APastedRowHasTheFullVolume) {
    open_rows({"a", "b"}, 1);
    list.copier_.click();
    list.coller.click();
    EXPECT_EQ(rows().row(2), (RowTable::Row{"a", "0.10", "200.00", "Rock", "100", "00:03:20"}));
    EXPECT_THAT(saved_paths(), ElementsAre("a", "a", "b"));
}

TEST_F(ListEditingTest, PasteGoesBehindTheSelectedRowWhateverTheInsertionMode) {
    open_rows({"a", "b", "c"}, 3);
    list.copier_.click();
    list.inser_fin.click();
    rows().click(1);
    list.coller.click();
    EXPECT_THAT(paths(), ElementsAre("a", "c", "b", "c"));
}

TEST_F(ListEditingTest, PasteIsOfferedOnceARowWasCopied) {
    open_rows({"a"}, 1);
    EXPECT_FALSE(list.coller.enabled);
    list.copier_.click();
    EXPECT_TRUE(list.coller.enabled);
}

TEST_F(ListEditingTest, NothingIsPastedWhileNothingWasCopied) {
    open_rows({"a"}, 1);
    machine.shell.set_clipboard_text("un texte");
    list.Load_Pl.open();
    list.coller.click();
    EXPECT_THAT(paths(), ElementsAre("a"));
}

TEST_F(ListEditingTest, ACutRowIsKeptWhateverIsReadMeanwhile) {
    open_rows({"a", "b", "c"}, 1);
    list.Couper_.click();
    rows().click(2);
    list.char1.click();
    list.coller.click();
    EXPECT_THAT(paths(), ElementsAre("b", "c", "a"));
}

TEST_F(ListEditingTest, WithoutARowThereIsNothingToCutOrCopy) {
    open_list("C:\\Sonarelle\\jour.dfm", {record_of("a")});
    list.Couper_.click();
    list.copier_.click();
    EXPECT_THAT(paths(), ElementsAre("a"));
    EXPECT_FALSE(list.coller.enabled);
}

TEST_F(ListEditingTest, CuttingTheRowBeforeThePlayingOneMovesIt) {
    open_rows({"a", "b", "c"}, 1);
    station.list.ligne_en_lecture = 2;
    list.Couper_.click();
    EXPECT_EQ(station.list.ligne_en_lecture, 1);
}

TEST_F(ListEditingTest, CuttingThePlayingRowLeavesItsPlaceToTheNextOne) {
    open_rows({"a", "b", "c"}, 2);
    station.list.ligne_en_lecture = 2;
    list.Couper_.click();
    EXPECT_EQ(station.list.ligne_en_lecture, 2);
    EXPECT_EQ(rows().text(2), "c");
}

TEST_F(ListEditingTest, APasteAtThePlayingRowMovesIt) {
    open_rows({"a", "b", "c"}, 1);
    station.list.ligne_en_lecture = 2;
    list.copier_.click();
    list.coller.click();
    EXPECT_EQ(station.list.ligne_en_lecture, 3);
    EXPECT_EQ(rows().text(3), "b");
}

TEST_F(ListEditingTest, TheRowThatTakesThePlaceOfACutOneIsSelected) {
    open_rows({"a", "b", "c"}, 2);
    list.Couper_.click();
    EXPECT_EQ(rows().selected(), 2);
}

TEST_F(ListEditingTest, ARemovedRowIsSavedAndCounted) {
    open_rows({"a", "b", "c"}, 2);
    list.supprime.click();
    EXPECT_THAT(saved_paths(), ElementsAre("a", "c"));
    EXPECT_EQ(list.list_status.caption.get(), "Nb de morceaux : 2");
}

TEST_F(ListEditingTest, RemovingTheLastRowEndsTheListModes) {
    open_rows({"a"}, 1);
    list.full_length_mode.set_value(true);
    list.supprime.click();
    EXPECT_TRUE(list.player_mode.value());
}

TEST_F(ListEditingTest, WhereModificationsAreNotSavedCutCopyAndPasteAreRefused) {
    open_rows({"a", "b"}, 1);
    list.copier_.click();
    list.a_Ne_pas_Sauve.click();
    for (MenuItem* entry : {&list.Couper_, &list.copier_, &list.coller}) {
        machine.dialogs.expect_box("Traitement impossible avec l'option\n"
                                   "Ne pas sauver les modifications dans le fichier par défaut\n"
                                   "Sauvegarder cette liste",
                                   Answer::ok);
        entry->click();
    }
    EXPECT_THAT(paths(), ElementsAre("a", "b"));
}

TEST_F(ListEditingTest, WhereModificationsAreNotSavedARowIsRemovedFromTheTableAlone) {
    open_rows({"a", "b"}, 1);
    list.a_Ne_pas_Sauve.click();
    list.supprime.click();
    EXPECT_THAT(paths(), ElementsAre("b"));
    EXPECT_FALSE(machine.disk.exists("C:\\Sonarelle\\liste.dfm"));
    EXPECT_EQ(station.list.fichier_liste, "C:\\Sonarelle\\jour.dfm");
}

TEST_F(ListEditingTest, AFailedSaveLeavesTheRowsAsTheEditMadeThem) {
    open_rows({"a", "b", "c"}, 1);
    machine.disk.set_capacity(0);
    machine.dialogs.expect_box(Answer::ok);
    list.Couper_.click();
    EXPECT_THAT(paths(), ElementsAre("b", "c"));
    EXPECT_EQ(station.list.fichier_liste, "C:\\Sonarelle\\jour.dfm");
}

} // namespace sonarelle
