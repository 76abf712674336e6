// Files of another program are dropped on the list.
#include <gmock/gmock.h>

#include "playlist/edited_list_fixture.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;

class RowArrivalTest : public EditedList {
protected:
    RowArrivalTest() {
        for (const char* path : {"C:\\m\\x.mp3", "C:\\m\\y.mp3", "C:\\m\\sous\\z.wav"})
            machine.add_track(path, 30);
        machine.disk.put_file("C:\\m\\notes.txt", "x");
    }

    void drop(const std::vector<std::string>& files) { rows().drop_files(files); }
    void expect_saving() { machine.dialogs.expect_box("Sauvegarder la liste ?", Answer::no); }
};

} // namespace

TEST_F(RowArrivalTest, OneFileComesBehindTheSelectedRowAndIsMeasured) {
    open_rows({"a", "b"}, 1);
    drop({"C:\\m\\x.mp3"});
    EXPECT_THAT(paths(), ElementsAre("a", "C:\\m\\x.mp3", "b"));
    EXPECT_EQ(rows().sub_item(2, list_column::start), "0.10");
    EXPECT_EQ(rows().sub_item(2, list_column::end), "30.00");
    EXPECT_EQ(rows().sub_item(2, list_column::volume), "100");
    EXPECT_THAT(saved_paths(), ElementsAre("a", "C:\\m\\x.mp3", "b"));
}

TEST_F(RowArrivalTest, OnAnEmptyTableItIsTheFirstRow) {
    drop({"C:\\m\\x.mp3"});
    EXPECT_THAT(paths(), ElementsAre("C:\\m\\x.mp3"));
}

TEST_F(RowArrivalTest, ItComesBeforeTheSelectedRowWhereThatIsTheMode) {
    open_rows({"a", "b"}, 2);
    list.inser_avant.click();
    drop({"C:\\m\\x.mp3"});
    EXPECT_THAT(paths(), ElementsAre("a", "C:\\m\\x.mp3", "b"));
}

TEST_F(RowArrivalTest, ItComesBehindAllRowsWhereThatIsTheMode) {
    open_rows({"a", "b"}, 1);
    list.inser_fin.click();
    drop({"C:\\m\\x.mp3"});
    EXPECT_THAT(paths(), ElementsAre("a", "b", "C:\\m\\x.mp3"));
}

TEST_F(RowArrivalTest, TheSecondDropComesBehindTheFirst) {
    open_rows({"a", "b"}, 1);
    drop({"C:\\m\\x.mp3"});
    drop({"C:\\m\\y.mp3"});
    EXPECT_THAT(paths(), ElementsAre("a", "C:\\m\\x.mp3", "C:\\m\\y.mp3", "b"));
}

TEST_F(RowArrivalTest, OneOfTheModesIsTicked) {
    EXPECT_TRUE(list.inser_apres.checked);
    list.inser_fin.click();
    EXPECT_TRUE(list.inser_fin.checked);
    EXPECT_FALSE(list.inser_apres.checked);
    EXPECT_EQ(station.list.mode_insertion, 3);
}

TEST_F(RowArrivalTest, SeveralFilesAreMeasuredAndTheOtherRowsStayAsTheyAre) {
    open_rows({"C:\\m\\y.mp3", "b"}, 1);
    expect_saving();
    drop({"C:\\m\\x.mp3", "C:\\m\\sous\\z.wav"});
    EXPECT_THAT(paths(), ElementsAre("C:\\m\\y.mp3", "C:\\m\\x.mp3", "C:\\m\\sous\\z.wav", "b"));
    EXPECT_EQ(rows().sub_item(1, list_column::end), "200.00");
    EXPECT_EQ(rows().sub_item(1, list_column::volume), "80");
    EXPECT_EQ(rows().sub_item(2, list_column::end), "30.00");
    EXPECT_EQ(rows().sub_item(3, list_column::end), "30.00");
}

TEST_F(RowArrivalTest, AFolderStandsForItsSoundFiles) {
    expect_saving();
    drop({"C:\\m"});
    EXPECT_THAT(paths(), ElementsAre("C:\\m\\sous\\z.wav", "C:\\m\\x.mp3", "C:\\m\\y.mp3"));
}

TEST_F(RowArrivalTest, ThePlayingRowMovesWithThoseBehindTheDrop) {
    open_rows({"a", "b"}, 1);
    station.list.ligne_en_lecture = 2;
    expect_saving();
    drop({"C:\\m\\x.mp3", "C:\\m\\y.mp3"});
    EXPECT_EQ(station.list.ligne_en_lecture, 4);
}

TEST_F(RowArrivalTest, AFileThatCannotBePlayedDoesNotStay) {
    open_rows({"a", "b"}, 1);
    drop({"C:\\m\\notes.txt"});
    EXPECT_THAT(paths(), ElementsAre("a", "b"));
}

TEST_F(RowArrivalTest, WhereDraggingIsNotAllowedItIsIgnored) {
    open_rows({"a"}, 1);
    station.list.glisser_autorise = false;
    drop({"C:\\m\\x.mp3"});
    EXPECT_THAT(paths(), ElementsAre("a"));
}

TEST_F(RowArrivalTest, WhereModificationsAreNotSavedItIsRefused) {
    open_rows({"a"}, 1);
    list.a_Ne_pas_Sauve.click();
    machine.dialogs.expect_box("Traitement impossible avec l'option", Answer::ok);
    drop({"C:\\m\\x.mp3"});
    EXPECT_THAT(paths(), ElementsAre("a"));
}

TEST_F(RowArrivalTest, TheExplorerBeginsInTheMusicFolder) {
    station.settings.chemin_musique = "C:\\m";
    list.ajout_fich_reseau.click();
    EXPECT_THAT(machine.shell.started, ElementsAre(SimulatedShell::Start{"", "C:\\m"}));
}

} // namespace sonarelle
