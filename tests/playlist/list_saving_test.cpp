// The rows are saved whole into the station's default list.
#include "playlist/list_document.h"
#include "support/station_fixture.h"

namespace sonarelle {

namespace {

constexpr std::string_view matin = "C:\\Listes\\matin.dfm";

class ListSavingTest : public StationFixture {};

} // namespace

TEST_F(ListSavingTest, GivesABlankEndItsDefaultOnSaving) {
    open_list(matin, {record_of("a", "")});
    EXPECT_EQ(rows().sub_item(1, 2), "");
    station.list_document.sauve_tout();
    EXPECT_EQ(rows().sub_item(1, 2), "0.00");
}

TEST_F(ListSavingTest, SavesToTheDefaultListWhateverWasLoaded) {
    open_list(matin, {record_of("a"), record_of("b", "12.50", 80, 2.5)});
    station.list_document.sauve_tout();
    EXPECT_EQ(default_list_bytes(), bytes_of({record_of("a"), record_of("b", "12.50", 80, 2.5)}));
}

TEST_F(ListSavingTest, IsCalledByTheDefaultListAfterASave) {
    open_list(matin, {record_of("a")});
    station.list_document.sauve_tout();
    EXPECT_EQ(station.list.fichier_liste, "liste.dfm");
    EXPECT_EQ(station.list_window.caption.get(), "Fichier liste ( Modification : liste.dfm )");
}

TEST_F(ListSavingTest, OfNoRowsIsSavedWithLengthZero) {
    machine.disk.put_file("C:\\Sonarelle\\liste.dfm", "ancien");
    station.list_document.sauve_tout();
    EXPECT_EQ(default_list_bytes(), "");
}

TEST_F(ListSavingTest, FillsEmptyCellsInTheTableAndInTheFile) {
    rows().append({"a", "", "", "", "", ""});
    rows().append({"b", "", "", "", "", ""});
    machine.dialogs.default_answers();
    station.list_document.sauve_tout();
    EXPECT_EQ(rows().row(2), (RowTable::Row{"b", "0.10", "0.00", "divers", "0", "2"}));
    EXPECT_EQ(record_in(default_list_bytes(), 2).trimmed_duree_piste(), "2");
    EXPECT_EQ(record_in(default_list_bytes(), 2).debut_lecture(), 0.10);
}

TEST_F(ListSavingTest, RepeatsTheValueBeforeForACellThatCannotBeConverted) {
    open_list(matin, {record_of("a", "1", 80, 2.5), record_of("b")});
    rows().set_sub_item(2, 1, "deux");
    rows().set_sub_item(2, 4, "fort");
    station.list_document.sauve_tout();
    EXPECT_EQ(record_in(default_list_bytes(), 2).debut_lecture(), 2.5);
    EXPECT_EQ(record_in(default_list_bytes(), 2).volume(), 80);
    EXPECT_EQ(record_in(default_list_bytes(), 2).trimmed_chemin(), "b");
}

TEST_F(ListSavingTest, TurnsThePlayingRowZeroIntoOneOnSaving) {
    open_list(matin, {record_of("a")});
    station.list_document.sauve_tout();
    EXPECT_EQ(station.list.ligne_en_lecture, 1);
}

TEST_F(ListSavingTest, KeepsThePlayingRowOnSaving) {
    open_list(matin, {record_of("a")});
    station.list.ligne_en_lecture = 7;
    station.list_document.sauve_tout();
    EXPECT_EQ(station.list.ligne_en_lecture, 7);
}

TEST_F(ListSavingTest, SelectsTheCurrentRowAfterASave) {
    open_list(matin, {record_of("a"), record_of("b"), record_of("c")});
    station.list.index_en_cours = 2;
    station.list_document.sauve_tout();
    EXPECT_EQ(rows().selected(), 2);
}

TEST_F(ListSavingTest, StandsAsItWasWhateverByteTheDiskFillsAt) {
    machine.disk.put_file("C:\\Sonarelle\\liste.dfm", bytes_of(record_of("ancien")));
    open_list(matin, {record_of("a"), record_of("b")});
    for (std::int64_t room = 0; room < 2 * 418; ++room) {
        machine.disk.set_capacity(machine.disk.used() + room);
        machine.dialogs.expect_box("Disque plein", Answer::ok);
        station.list_document.sauve_tout();
        ASSERT_EQ(default_list_bytes(), bytes_of(record_of("ancien"))) << room;
    }
}

TEST_F(ListSavingTest, NamesTheListThatTheFullDiskDidNotTake) {
    open_list(matin, {record_of("a")});
    machine.disk.set_capacity(machine.disk.used());
    machine.dialogs.expect_box("liste.dfm", Answer::ok);
    station.list_document.sauve_tout();
    EXPECT_EQ(machine.dialogs.last().icon, Icon::stop);
}

TEST_F(ListSavingTest, TicksOneOfTheTwoSavePolicies) {
    EXPECT_TRUE(station.list_window.A_sauve.checked);
    station.list_window.a_Ne_pas_Sauve.click();
    EXPECT_FALSE(station.list_window.A_sauve.checked);
    EXPECT_TRUE(station.list_window.a_Ne_pas_Sauve.checked);
    station.list_window.A_sauve.click();
    EXPECT_TRUE(station.list_window.A_sauve.checked);
    EXPECT_FALSE(station.list_window.a_Ne_pas_Sauve.checked);
}

} // namespace sonarelle
