// A row is dragged to another place of the list.
#include <gmock/gmock.h>

#include "playlist/edited_list_fixture.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;

class RowDragTest : public EditedList {
protected:
    void drag(int row, int target) {
        rows().press();
        ASSERT_TRUE(rows().drag(row));
        rows().drop(target);
    }
};

} // namespace

TEST_F(RowDragTest, ARowLandsBeforeTheOneUnderThePointer) {
    open_rows({"a", "b", "c", "d"}, 1);
    drag(1, 3);
    EXPECT_THAT(paths(), ElementsAre("b", "a", "c", "d"));
    EXPECT_THAT(saved_paths(), ElementsAre("b", "a", "c", "d"));
}

TEST_F(RowDragTest, UpwardsItTakesThePlaceOfTheOneUnderThePointer) {
    open_rows({"a", "b", "c", "d"}, 1);
    drag(4, 2);
    EXPECT_THAT(paths(), ElementsAre("a", "d", "b", "c"));
}

TEST_F(RowDragTest, BehindTheLastRowItLandsBeforeIt) {
    open_rows({"a", "b", "c"}, 1);
    drag(1, 9);
    EXPECT_THAT(paths(), ElementsAre("b", "a", "c"));
}

TEST_F(RowDragTest, BesideAllRowsNothingChanges) {
    open_rows({"a", "b", "c"}, 1);
    drag(1, 0);
    EXPECT_THAT(paths(), ElementsAre("a", "b", "c"));
    EXPECT_FALSE(machine.disk.exists("C:\\Sonarelle\\liste.dfm"));
}

TEST_F(RowDragTest, TheCellsOfTheRowGoWithIt) {
    open_list("C:\\Sonarelle\\jour.dfm", {record_of("a", "12.50", 80, 3.2, "Jazz", "00:00:12"), record_of("b")});
    drag(2, 1);
    EXPECT_EQ(rows().row(2), (RowTable::Row{"a", "3.20", "12.50", "Jazz", "80", "00:00:12"}));
}

TEST_F(RowDragTest, ThePlayingRowTakesItsPlaceAlong) {
    open_rows({"a", "b", "c"}, 1);
    station.list.ligne_en_lecture = 3;
    drag(3, 1);
    EXPECT_EQ(station.list.ligne_en_lecture, 1);
}

TEST_F(RowDragTest, WhereDraggingIsNotAllowedNoRowCanBeTaken) {
    open_rows({"a", "b"}, 1);
    station.list.glisser_autorise = false;
    rows().press();
    EXPECT_FALSE(rows().drag(1));
}

TEST_F(RowDragTest, ARowThatHasMovedMeanwhileIsFoundByItsCells) {
    open_rows({"a", "b", "c", "d"}, 1);
    rows().press();
    ASSERT_TRUE(rows().drag(3));
    station.list_document.edits.remove(1);
    rows().drop(1);
    EXPECT_THAT(paths(), ElementsAre("c", "b", "d"));
}

TEST_F(RowDragTest, ARowThatHasGoneMeanwhileChangesNothing) {
    open_rows({"a", "b", "c"}, 1);
    rows().press();
    ASSERT_TRUE(rows().drag(2));
    station.list_document.edits.remove(2);
    rows().drop(1);
    EXPECT_THAT(paths(), ElementsAre("a", "c"));
}

TEST_F(RowDragTest, AnOldListHasToBeSavedFirst) {
    open_rows({"a", "b"}, 1);
    station.list.nom_sauvegarde = "C:\\Sonarelle\\jour.rfm";
    machine.dialogs.expect_box("Sauvegarder dans format .dfm avant traitement !", Answer::ok);
    drag(2, 1);
    EXPECT_THAT(paths(), ElementsAre("a", "b"));
}

TEST_F(RowDragTest, TheFlagsFallHoweverItEnds) {
    open_rows({"a", "b"}, 1);
    rows().press();
    EXPECT_TRUE(station.list.glisser_en_cours.is_true());
    ASSERT_TRUE(rows().drag(1));
    rows().end_drag();
    EXPECT_TRUE(station.list.glisser_en_cours.is_false());
    rows().drop(2);
    EXPECT_THAT(paths(), ElementsAre("a", "b"));
}

} // namespace sonarelle
