#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <set>

#include "desktop/desktop_fixture.h"
#include "desktop/pixels.h"
#include "desktop/row_table_binding.h"

namespace sonarelle {

namespace {

class TableView : public DesktopFixture {
protected:
    void fill(int count) {
        for (int row = 1; row <= count; ++row)
            table.append({"D:\\titre " + std::to_string(row) + ".mp3", "0.10", "200.00", "Rock", "100", "00:03:20"});
        settle();
    }
    [[nodiscard]] std::string shown(int row, int column = 0) const {
        return widget.model()->index(row - 1, column).data().toString().toStdString();
    }

    void show() {
        widget.resize(600, 300);
        widget.show();
        QApplication::setActiveWindow(&widget);
        settle();
    }
    void press(int row, int column = 0, Qt::KeyboardModifiers keys = {}) {
        const QRect cell = widget.visualRect(widget.model()->index(row - 1, column));
        QTest::mouseClick(widget.viewport(), Qt::LeftButton, keys, cell.center());
        settle();
    }
    [[nodiscard]] QLineEdit* editor() { return widget.findChild<QLineEdit*>(); }

    RowTable table{window, "ListView1", {{"Chemin", Twips{3000}}, {"Début", Twips{900}}, {"Fin", Twips{9000}}}};
    QTableView widget;
    RowTableBinding binding{table, widget, services};
};

TEST_F(TableView, ShowsTheRowsAndColumnsOfTheTable) {
    fill(3);
    EXPECT_EQ(widget.model()->rowCount(), 3);
    EXPECT_EQ(widget.model()->columnCount(), 3);
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

TEST_F(TableView, RowsOnTheAirAndNextAreTinted) {
    fill(3);
    binding.model().set_marks({.playing = 1, .next = 2});
    const auto ground = [this](int row) { return widget.model()->index(row - 1, 0).data(Qt::BackgroundRole); };
    EXPECT_TRUE(ground(1).isValid());
    EXPECT_TRUE(ground(2).isValid());
    EXPECT_NE(ground(1), ground(2));
    EXPECT_FALSE(ground(3).isValid());
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
    EXPECT_EQ(widget.selectionModel()->selectedIndexes().size(), 3);
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

TEST_F(TableView, ColumnsAreAsWideAsTheStationWishesAndTheFirstTakesTheRest) {
    show();
    EXPECT_EQ(widget.columnWidth(1), 60);
    EXPECT_EQ(widget.columnWidth(2), 104); // no other takes much from the paths
    EXPECT_EQ(widget.columnWidth(0) + 164, widget.viewport()->width());
    widget.resize(900, 300);
    settle();
    EXPECT_EQ(widget.columnWidth(1), 60);
    EXPECT_EQ(widget.columnWidth(0) + 164, widget.viewport()->width());
}

TEST_F(TableView, CaptionsHaveTwoLinesAndRowsNoNumbers) {
    show();
    const QHeaderView& header = *widget.horizontalHeader();
    EXPECT_GE(header.height(), 2 * header.fontMetrics().height());
    EXPECT_TRUE(header.defaultAlignment().testFlag(Qt::AlignLeft));
    EXPECT_TRUE(static_cast<int>(header.defaultAlignment()) & Qt::TextWordWrap);
    EXPECT_TRUE(header.font().bold());
    EXPECT_FALSE(widget.verticalHeader()->isVisible());
}

TEST_F(TableView, RowsHaveRoomForTheirText) {
    fill(3);
    show();
    EXPECT_EQ(widget.rowHeight(1), widget.fontMetrics().height() + 10);
}

TEST_F(TableView, ScrollsByWholeRows) {
    fill(500);
    show();
    table.ensure_visible(400);
    settle();
    EXPECT_EQ(widget.visualRect(widget.indexAt({5, 5})).top(), 0);
    EXPECT_EQ(widget.verticalScrollBar()->value(), widget.rowAt(5));
}

TEST_F(TableView, ColoursOfTheStationAreTheRows) {
    table.fore_colour = 0x000000;
    table.back_colour = 0x80FFFF;
    fill(1);
    show();
    settle();
    EXPECT_EQ(ground_in(seen(*widget.viewport())), QColor(0xff, 0xff, 0x80));
    EXPECT_TRUE(is_near(ink_in(seen(*widget.viewport())), Qt::black, 40));
}

TEST_F(TableView, SelectionOfAMarkedRowIsAnEdge) {
    fill(3);
    show();
    binding.model().set_marks({.playing = 1, .next = 2});
    const auto row = [this](int number) {
        return seen(*widget.viewport()).copy(widget.visualRect(widget.model()->index(number - 1, 1)));
    };
    const QColor edge = widget.palette().color(QPalette::Highlight);
    table.select(1);
    settle();
    EXPECT_GT(count_of(row(1), edge), 100);
    EXPECT_LT(count_of(row(1), edge), 600);
    EXPECT_EQ(count_of(row(2), edge), 0);
    table.select(3);
    settle();
    EXPECT_EQ(count_of(row(1), edge), 0);
    EXPECT_GT(count_of(row(3), edge), 600);
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
        QTableView passing;
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
