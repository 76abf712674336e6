// Where windows come on the screen.
#include "desktop/desktop_fixture.h"
#include "desktop/window_view.h"

namespace sonarelle {

namespace {

class WindowPlaces : public DesktopFixture {
protected:
    WindowView view{window, services, {300, 200}};
};

} // namespace

TEST_F(WindowPlaces, RightOfTheScreenIsNotTaken) {
    window.show();
    settle();
    window.left = Twips{15 * 5000};
    settle();
    EXPECT_EQ(view.x() + view.frameGeometry().width(), view.screen()->availableGeometry().right() + 1);
    EXPECT_EQ(window.left.get(), Twips{15 * view.x()});
}

TEST_F(WindowPlaces, PartlyRightOfTheScreenIsNotTaken) {
    window.show();
    settle();
    const int right = view.screen()->availableGeometry().right();
    window.left = Twips{15 * (right - 100)};
    settle();
    EXPECT_EQ(view.x() + view.frameGeometry().width(), right + 1);
}

TEST_F(WindowPlaces, ThatLiesBeyondTheScreenIsMendedBeforeItIsSeen) {
    window.left = Twips{15 * 5000};
    window.top = Twips{15 * 5000};
    settle();
    EXPECT_FALSE(view.isVisible());
    EXPECT_EQ(window.left.get(), Twips{15 * view.x()});
    EXPECT_EQ(window.top.get(), Twips{15 * view.y()});
    EXPECT_TRUE(view.screen()->availableGeometry().contains(view.geometry()));
}

TEST_F(WindowPlaces, OnTheScreenIsTakenAsItIs) {
    window.left = Twips{15 * 70};
    window.top = Twips{15 * 90};
    window.show();
    settle();
    EXPECT_EQ(view.pos(), QPoint(70, 90));
    EXPECT_EQ(window.left.get(), Twips{15 * 70});
    EXPECT_EQ(window.top.get(), Twips{15 * 90});
}

TEST_F(WindowPlaces, AreTakenTogetherWithASize) {
    window.show();
    settle();
    window.left = Twips{15 * 70};
    window.top = Twips{15 * 90};
    window.width = Twips{15 * 420};
    window.height = Twips{15 * 310};
    settle();
    EXPECT_EQ(view.pos(), QPoint(70, 90));
    EXPECT_EQ(view.size(), QSize(420, 310));
}

TEST_F(WindowPlaces, SizeThatTheOperatorGivesIsHeardOfInBothDirections) {
    window.show();
    settle();
    view.resize(400, 300);
    settle();
    int heard = 0;
    window.on_move = [&] { ++heard; };
    view.resize(400, 340);
    settle();
    EXPECT_EQ(heard, 1);
    EXPECT_EQ(window.height.get(), Twips{15 * 340});
    view.resize(440, 340);
    settle();
    EXPECT_EQ(heard, 2);
    EXPECT_EQ(window.width.get(), Twips{15 * 440});
}

TEST_F(WindowPlaces, LeftOfTheScreenIsNotTaken) {
    window.left = Twips{-15 * 200};
    window.show();
    settle();
    EXPECT_EQ(view.x(), view.screen()->availableGeometry().left());
}

TEST_F(WindowPlaces, AboveTheScreenIsNotTaken) {
    window.show();
    settle();
    window.top = Twips{-15 * 200};
    settle();
    EXPECT_EQ(view.y(), view.screen()->availableGeometry().top());
}

TEST_F(WindowPlaces, ThatTheOperatorChoseBeyondTheScreenIsHis) {
    window.show();
    settle();
    view.move(-50, 40);
    settle();
    const QPoint chosen = view.pos();
    ASSERT_LT(chosen.x(), 0);
    window.caption = "Radio Port";
    settle();
    EXPECT_EQ(view.pos(), chosen);
}

TEST_F(WindowPlaces, BelowTheScreenIsNotTaken) {
    window.show();
    settle();
    window.top = Twips{15 * 5000};
    settle();
    EXPECT_EQ(view.y() + view.frameGeometry().height(), view.screen()->availableGeometry().bottom() + 1);
    EXPECT_EQ(window.top.get(), Twips{15 * view.y()});
}

} // namespace sonarelle
