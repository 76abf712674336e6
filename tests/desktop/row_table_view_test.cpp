#include <set>

#include "desktop/row_table_fixture.h"

namespace sonarelle {

namespace {

using TableView = TableFixture;

TEST_F(TableView, ShowsTheRowsAndColumnsOfTheTable) {
    fill(3);
    EXPECT_EQ(widget.model()->rowCount(), 3);
    EXPECT_EQ(widget.model()->columnCount(), 4); // with their numbers
    EXPECT_EQ(shown(2), "D:\\titre 2.mp3");
}

TEST_F(TableView, ChangedCellIsShown) {
    fill(3);
    table.set_sub_item(2, 1, "4.20");
    settle();
    EXPECT_EQ(shown(2, 1), "4.20");
}

TEST_F(TableView, ChangedCellsOfTwoRowsAreBothShown) {
    fill(3);
    std::set<int> shown_anew;
    QObject::connect(widget.model(), &QAbstractItemModel::modelReset, [&] { shown_anew = {1, 2, 3}; });
    QObject::connect(widget.model(), &QAbstractItemModel::dataChanged,
                     [&](const QModelIndex& first) { shown_anew.insert(first.row() + 1); });
    table.set_sub_item(1, 1, "4.20");
    table.set_sub_item(3, 1, "4.20");
    settle();
    EXPECT_TRUE(shown_anew.contains(1));
    EXPECT_TRUE(shown_anew.contains(3));
}

TEST_F(TableView, InsertedRowPushesTheOthersDown) {
    fill(3);
    table.insert(2, {"D:\\neuf.mp3"});
    settle();
    EXPECT_EQ(widget.model()->rowCount(), 4);
    EXPECT_EQ(shown(2), "D:\\neuf.mp3");
    EXPECT_EQ(shown(3), "D:\\titre 2.mp3");
}

TEST_F(TableView, RemovedRowIsGone) {
    fill(3);
    table.remove(1);
    settle();
    EXPECT_EQ(widget.model()->rowCount(), 2);
    EXPECT_EQ(shown(1), "D:\\titre 2.mp3");
}

TEST_F(TableView, ManyChangesAreOneNewTable) {
    fill(3);
    int resets = 0;
    QObject::connect(widget.model(), &QAbstractItemModel::modelReset, [&] { ++resets; });
    fill(1000);
    EXPECT_EQ(resets, 1);
    EXPECT_EQ(widget.model()->rowCount(), 1003);
}

TEST_F(TableView, SelectionStaysOverANewTable) {
    fill(10);
    table.select(4);
    table.remove(9);
    table.remove(8);
    settle();
    EXPECT_EQ(widget.currentIndex().row(), 3);
}

TEST_F(TableView, SelectionStaysOverANewTableThatComesLater) {
    fill(10);
    table.select(4);
    settle();
    table.remove(9);
    table.remove(8);
    settle();
    EXPECT_EQ(widget.currentIndex().row(), 3);
}

TEST_F(TableView, SelectionOfTheStationIsShownAndIsNoEvent) {
    fill(3);
    table.select(3);
    settle();
    EXPECT_EQ(widget.currentIndex().row(), 2);
    EXPECT_EQ(events, 0);
}

TEST_F(TableView, PressedRowIsSelectedInTheTable) {
    fill(3);
    int clicks = 0;
    table.on_click = [&] { ++clicks; };
    widget.resize(600, 300);
    widget.show();
    QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, widget.visualRect(widget.model()->index(1, 0)).center());
    EXPECT_EQ(table.selected(), 2);
    EXPECT_EQ(clicks, 1);
}

TEST_F(TableView, SecondPressOnTheSameRowIsAClickToo) {
    fill(3);
    int clicks = 0;
    table.on_click = [&] { ++clicks; };
    widget.resize(600, 300);
    widget.show();
    const QPoint place = widget.visualRect(widget.model()->index(1, 0)).center();
    QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(clicks, 2);
}

TEST_F(TableView, ArrowKeysChooseRowsAsPressesDo) {
    fill(3);
    table.select(1);
    settle();
    QTest::keyClick(&widget, Qt::Key_Down);
    EXPECT_EQ(table.selected(), 2);
}

TEST_F(TableView, PressOnTheRowThatAnArrowChoseIsAClickToo) {
    fill(3);
    int clicks = 0;
    table.on_click = [&] { ++clicks; };
    show();
    table.select(1);
    settle();
    QTest::keyClick(&widget, Qt::Key_Down);
    EXPECT_EQ(clicks, 1);
    press(2);
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(table.selected(), 2);
}

TEST_F(TableView, BeginsWithTheSelectionOfTheTable) {
    fill(3);
    table.select(2);
    RowTableView later;
    const RowTableBinding second{table, later, services};
    EXPECT_EQ(later.currentIndex().row(), 1);
    EXPECT_EQ(events, 0);
}

TEST_F(TableView, TabKeyStepsThroughNoCells) {
    fill(3);
    table.select(1);
    settle();
    QTest::keyClick(&widget, Qt::Key_Tab);
    EXPECT_EQ(widget.currentIndex(), widget.model()->index(0, 0));
}

TEST_F(TableView, RowThatMustBeSeenIsScrolledIntoView) {
    widget.resize(600, 200);
    widget.show();
    fill(500);
    table.ensure_visible(400);
    settle();
    EXPECT_TRUE(widget.viewport()->rect().intersects(widget.visualRect(widget.model()->index(399, 0))));
}

TEST_F(TableView, HundredThousandRowsMakeNoWidgets) {
    widget.resize(600, 300);
    widget.show();
    const auto before = widget.findChildren<QWidget*>().size();
    fill(100000);
    EXPECT_EQ(widget.model()->rowCount(), 100000);
    EXPECT_EQ(widget.findChildren<QWidget*>().size(), before);
}

TEST_F(TableView, OpensNoEditorWhereEditingIsNotAutomatic) {
    fill(1);
    EXPECT_FALSE(widget.model()->index(0, 0).flags().testFlag(Qt::ItemIsEditable));
}

TEST_F(TableView, OpensAnEditorOnTheFirstColumnAloneWhereEditingIsAutomatic) {
    fill(1);
    table.label_editing = LabelEditing::automatic;
    EXPECT_TRUE(widget.model()->index(0, 0).flags().testFlag(Qt::ItemIsEditable));
    EXPECT_FALSE(widget.model()->index(0, 1).flags().testFlag(Qt::ItemIsEditable));
}

TEST_F(TableView, EditorInATableThatCantBeReachedAnyMoreGivesTheKeyboardToItsWindow) {
    QWidget page;
    widget.setParent(&page);
    fill(1);
    table.label_editing = LabelEditing::automatic;
    page.show();
    QApplication::setActiveWindow(&page);
    widget.setFocus();
    widget.edit(widget.model()->index(0, 0));
    ASSERT_NE(page.focusWidget(), &widget);
    table.enabled = false;
    settle();
    EXPECT_EQ(page.focusWidget(), &page);
    widget.setParent(nullptr);
}

TEST_F(TableView, EditedLabelReachesTheTableWhereEditingIsAutomatic) {
    fill(1);
    table.label_editing = LabelEditing::automatic;
    widget.model()->setData(widget.model()->index(0, 0), "D:\\autre.mp3", Qt::EditRole);
    EXPECT_EQ(table.text(1), "D:\\autre.mp3");
}

TEST_F(TableView, PressOnAnyCellSelectsItsWholeRow) {
    fill(3);
    show();
    press(2, 1);
    EXPECT_EQ(table.selected(), 2);
    EXPECT_EQ(widget.selectionModel()->selectedIndexes().size(), 4); // with its number
}

TEST_F(TableView, HasOneSelectedRowAtMost) {
    fill(3);
    show();
    press(1);
    press(3, 0, Qt::ControlModifier);
    EXPECT_EQ(widget.selectionModel()->selectedRows().size(), 1);
    press(2, 0, Qt::ShiftModifier);
    EXPECT_EQ(widget.selectionModel()->selectedRows().size(), 1);
}

TEST_F(TableView, FocusAloneChoosesNoRow) {
    fill(3);
    show();
    widget.setFocus(Qt::TabFocusReason);
    settle();
    EXPECT_EQ(table.selected(), 0);
    EXPECT_EQ(events, 0);
}

TEST_F(TableView, PressOnTheSelectedRowEditsItsLabel) {
    fill(3);
    table.label_editing = LabelEditing::automatic;
    show();
    press(2);
    EXPECT_EQ(editor(), nullptr);
    press(2);
    EXPECT_TRUE(becomes([this] { return editor() != nullptr; }));
    EXPECT_EQ(editor()->text(), "D:\\titre 2.mp3");
}

TEST_F(TableView, LettersAndKeysEditNoLabel) {
    fill(3);
    table.label_editing = LabelEditing::automatic;
    show();
    press(2);
    QTest::keyClick(&widget, Qt::Key_F2);
    QTest::keyClick(&widget, Qt::Key_X);
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(TableView, RowThatIsAddedOrTakenIsTheOnlyOneShownAnew) {
    fill(3);
    int resets = 0;
    QObject::connect(widget.model(), &QAbstractItemModel::modelReset, [&] { ++resets; });
    table.append({"D:\\neuf.mp3"});
    settle();
    table.remove(2);
    settle();
    table.set_sub_item(1, 1, "a");
    table.set_sub_item(1, 2, "b");
    settle();
    EXPECT_EQ(resets, 0);
    EXPECT_EQ(widget.model()->rowCount(), 3);
}

TEST_F(TableView, KeepsItsRowsAfterItsView) {
    {
        RowTableView passing;
        const RowTableBinding second{table, passing, services};
    }
    fill(2);
    EXPECT_EQ(table.count(), 2);
}

TEST_F(TableView, AsksForNoCellBeyondItsRows) {
    fill(2);
    table.remove(2); // and is asked before the change is shown
    EXPECT_FALSE(widget.model()->index(1, 0).data().isValid());
}

} // namespace

} // namespace sonarelle
