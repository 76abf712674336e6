#include "playlist/path_editing.h"

#include <gmock/gmock.h>

#include "support/maintenance_fixture.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;

class PathEditingTest : public MaintenanceFixture {};

} // namespace

TEST_F(PathEditingTest, IsOffAtTheStart) {
    EXPECT_TRUE(list().modifier_chemin_non.checked);
    EXPECT_FALSE(list().modifier_chemin.checked);
    EXPECT_TRUE(station.list.edition_chemin.is_false());
}

TEST_F(PathEditingTest, IsOneChoiceOfTwo) {
    list().modifier_chemin.click();
    EXPECT_TRUE(list().modifier_chemin.checked);
    EXPECT_FALSE(list().modifier_chemin_non.checked);
    EXPECT_TRUE(station.list.edition_chemin.is_true());
    list().modifier_chemin_non.click();
    EXPECT_FALSE(list().modifier_chemin.checked);
    EXPECT_TRUE(list().modifier_chemin_non.checked);
}

TEST_F(PathEditingTest, IsFollowedByTheViewAtEachPressOnARow) {
    open_rows({"C:\\a.mp3"});
    list().modifier_chemin.click();
    EXPECT_EQ(rows().label_editing.get(), LabelEditing::manual);
    rows().click(1);
    EXPECT_EQ(rows().label_editing.get(), LabelEditing::automatic);
    list().modifier_chemin_non.click();
    rows().click(1);
    EXPECT_EQ(rows().label_editing.get(), LabelEditing::manual);
}

TEST_F(PathEditingTest, SavesThePathThatWasTyped) {
    open_rows({"C:\\a.mp3"});
    list().modifier_chemin.click();
    rows().click(1);
    rows().edit_label(1, "C:\\b.mp3");
    EXPECT_THAT(saved_paths(), ElementsAre("C:\\b.mp3"));
}

TEST_F(PathEditingTest, LeavesTheDefaultListAloneWhenModificationsAreNotSaved) {
    open_rows({"C:\\a.mp3"});
    list().a_Ne_pas_Sauve.click();
    list().modifier_chemin.click();
    rows().click(1);
    rows().edit_label(1, "C:\\b.mp3");
    EXPECT_FALSE(machine.disk.exists("C:\\Sonarelle\\liste.dfm"));
}

} // namespace sonarelle
