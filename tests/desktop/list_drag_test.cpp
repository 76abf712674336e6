// The mouse on the rows of the list: a click, a double click, a row that is taken elsewhere.
#include <QHeaderView>

#include "desktop/list_window_fixture.h"

namespace sonarelle {

namespace {

class MouseOnTheList : public ListWindow {
protected:
    MouseOnTheList() {
        rows_of_three();
        RowTable& rows = list().rows;
        rows.on_press = [this] { done += "press "; };
        rows.on_click = [this] { done += "click " + std::to_string(list().rows.selected()) + " "; };
        rows.on_double_click = [this] { done += "double " + std::to_string(list().rows.selected()) + " "; };
        rows.on_heading_click = [this] { done += "heading "; };
        rows.on_drag = [this](int row) {
            done += "drag " + std::to_string(row) + " ";
            return may_be_dragged;
        };
        rows.on_drop = [this](int target) { done += "drop " + std::to_string(target) + " "; };
        rows.on_drag_end = [this] { done += "end "; };
        QApplication::setActiveWindow(&list_view());
        settle();
    }
    [[nodiscard]] QPoint middle(int row) { return table().visualRect(cell(row)).center(); }
    void take(int from, QPoint to) {
        QTest::mousePress(table().viewport(), Qt::LeftButton, Qt::NoModifier, middle(from));
        for (const QPoint place : {middle(from) + QPoint{0, QApplication::startDragDistance() + 1}, to}) {
            QMouseEvent move{QEvent::MouseMove, place,          table().viewport()->mapToGlobal(place),
                             Qt::NoButton,      Qt::LeftButton, Qt::NoModifier};
            QCoreApplication::sendEvent(table().viewport(), &move);
        }
    }
    void let_go(QPoint place) {
        QTest::mouseRelease(table().viewport(), Qt::LeftButton, Qt::NoModifier, place);
        settle();
    }

    std::string done;
    bool may_be_dragged = true;
};

} // namespace

TEST_F(MouseOnTheList, ClicksARowWhenTheHandLetsItGo) {
    QTest::mousePress(table().viewport(), Qt::LeftButton, Qt::NoModifier, middle(2));
    EXPECT_EQ(done, "press ");
    let_go(middle(2));
    EXPECT_EQ(done, "press end click 2 ");
}

TEST_F(MouseOnTheList, TakesARowElsewhereWithoutAClick) {
    take(3, middle(1));
    let_go(middle(1));
    EXPECT_EQ(done, "press drag 3 drop 1 end ");
}

TEST_F(MouseOnTheList, BesideTheRowsDropsNowhere) {
    const QPoint below{middle(1).x(), table().viewport()->height() + 40};
    take(3, below);
    let_go(below);
    EXPECT_EQ(done, "press drag 3 drop 0 end ");
}

TEST_F(MouseOnTheList, ShowsWhereTheRowWouldLand) {
    const QImage before = seen(*table().viewport());
    take(3, middle(1));
    settle();
    const QRect line{0, 0, table().viewport()->width(), 4};
    EXPECT_NE(seen(*table().viewport()).copy(line), before.copy(line));
    let_go(middle(1));
}

TEST_F(MouseOnTheList, EscapeEndsADrag) {
    take(3, middle(1));
    QTest::keyClick(&table(), Qt::Key_Escape);
    let_go(middle(1));
    EXPECT_EQ(done, "press drag 3 end ");
}

TEST_F(MouseOnTheList, ARowThatStaysIsDroppedNowhere) {
    may_be_dragged = false;
    take(3, middle(1));
    let_go(middle(1));
    EXPECT_EQ(done, "press drag 3 drop 0 end ");
}

TEST_F(MouseOnTheList, TwiceIsADoubleClick) {
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, Qt::NoModifier, middle(2));
    settle();
    EXPECT_TRUE(done.find("double 2") != std::string::npos) << done;
}

TEST_F(MouseOnTheList, TheRightButtonSelectsAndClicksNothing) {
    QTest::mouseClick(table().viewport(), Qt::RightButton, Qt::NoModifier, middle(3));
    settle();
    EXPECT_EQ(list().rows.selected(), 3);
    EXPECT_EQ(done, "");
}

TEST_F(MouseOnTheList, AHeadingIsPressed) {
    QTest::mouseClick(table().horizontalHeader()->viewport(), Qt::LeftButton, Qt::NoModifier, {200, 8});
    settle();
    EXPECT_EQ(done, "heading ");
}

} // namespace sonarelle
