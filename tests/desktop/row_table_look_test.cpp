// How a table of rows looks: its columns, its colours, its marks.
#include "desktop/pixels.h"
#include "desktop/row_table_fixture.h"

namespace sonarelle {

namespace {

using LookOfATable = TableFixture;

} // namespace

TEST_F(LookOfATable, RowsOnTheAirAndNextAreTinted) {
    fill(3);
    binding.model().set_marks({.playing = 1, .next = 2});
    const auto ground = [this](int row) { return widget.model()->index(row - 1, 0).data(Qt::BackgroundRole); };
    EXPECT_TRUE(ground(1).isValid());
    EXPECT_TRUE(ground(2).isValid());
    EXPECT_NE(ground(1), ground(2));
    EXPECT_FALSE(ground(3).isValid());
}

TEST_F(LookOfATable, ColumnsAreAsWideAsTheStationWishesAndTheFirstTakesTheRest) {
    show();
    EXPECT_EQ(widget.columnWidth(1), 60);
    EXPECT_EQ(widget.columnWidth(2), 104); // no other takes much from the paths
    EXPECT_EQ(widget.columnWidth(0) + 164, widget.viewport()->width());
    widget.resize(900, 300);
    settle();
    EXPECT_EQ(widget.columnWidth(1), 60);
    EXPECT_EQ(widget.columnWidth(0) + 164, widget.viewport()->width());
}

TEST_F(LookOfATable, CaptionsHaveTwoLinesAndRowsNoNumbers) {
    show();
    const QHeaderView& header = *widget.horizontalHeader();
    EXPECT_GE(header.height(), 2 * header.fontMetrics().height());
    EXPECT_TRUE(header.defaultAlignment().testFlag(Qt::AlignLeft));
    EXPECT_TRUE(static_cast<int>(header.defaultAlignment()) & Qt::TextWordWrap);
    EXPECT_TRUE(header.font().bold());
    EXPECT_FALSE(widget.verticalHeader()->isVisible());
}

TEST_F(LookOfATable, RowsHaveRoomForTheirText) {
    fill(3);
    show();
    EXPECT_EQ(widget.rowHeight(1), widget.fontMetrics().height() + 10);
}

TEST_F(LookOfATable, ScrollsByWholeRows) {
    fill(500);
    show();
    table.ensure_visible(400);
    settle();
    EXPECT_EQ(widget.visualRect(widget.indexAt({5, 5})).top(), 0);
    EXPECT_EQ(widget.verticalScrollBar()->value(), widget.rowAt(5));
}

TEST_F(LookOfATable, ColoursOfTheStationAreTheRows) {
    table.fore_colour = 0x000000;
    table.back_colour = 0x80FFFF;
    fill(1);
    show();
    settle();
    EXPECT_EQ(ground_in(seen(*widget.viewport())), QColor(0xff, 0xff, 0x80));
    EXPECT_TRUE(is_near(ink_in(seen(*widget.viewport())), Qt::black, 40));
}

TEST_F(LookOfATable, MarkedRowKeepsTheToldInkWhereItReads) {
    table.fore_colour = 0x000000;
    table.back_colour = 0xFFFFFF;
    fill(2);
    binding.model().set_marks({.playing = 1, .next = 0});
    const auto ink = [this](int row) { return widget.model()->index(row - 1, 0).data(Qt::ForegroundRole); };
    EXPECT_EQ(ink(1).value<QColor>(), QColor(Qt::black));
    EXPECT_FALSE(ink(2).isValid());
}

TEST_F(LookOfATable, SelectionOfAMarkedRowIsAnEdge) {
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

} // namespace sonarelle
