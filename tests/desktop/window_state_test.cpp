// A window's state between the station and the screen.
#include <QTest>
#include <QWindow>

#include "desktop/desktop_fixture.h"
#include "desktop/dresser.h"
#include "desktop/window_view.h"

namespace sonarelle {

namespace {

class StateOfAWindow : public DesktopFixture {
protected:
    void show() {
        window.show();
        settle();
    }

    GraphicButton button{window, "bouton", "Zap"};
    TextBox field{window, "champ"};
    WindowView view{window, services, {300, 200}};
};

} // namespace

TEST_F(StateOfAWindow, MaximisingByHandIsTold) {
    show();
    view.showMaximized();
    settle();
    EXPECT_EQ(window.state.get(), WindowState::maximised);
}

TEST_F(StateOfAWindow, ComingBackByHandIsTold) {
    int reduced = 0;
    window.on_reduce = [&] { ++reduced; };
    show();
    view.showMaximized();
    settle();
    view.showNormal();
    settle();
    EXPECT_EQ(window.state.get(), WindowState::normal);
    EXPECT_EQ(reduced, 0);
}

TEST_F(StateOfAWindow, ReducedByTheStationIsNotTheOperatorsDoing) {
    int reduced = 0;
    window.on_reduce = [&] { ++reduced; };
    show();
    window.state = WindowState::minimised;
    settle();
    EXPECT_EQ(reduced, 0);
}

TEST_F(StateOfAWindow, MaximisedByTheStationIsShown) {
    show();
    window.state = WindowState::maximised;
    settle();
    EXPECT_TRUE(view.isMaximized());
}

TEST_F(StateOfAWindow, StateOfTheStationIsNoEvent) {
    show();
    for (const WindowState state : {WindowState::maximised, WindowState::normal, WindowState::minimised}) {
        window.state = state;
        settle();
    }
    EXPECT_EQ(events, 0);
    EXPECT_EQ(window.state.get(), WindowState::minimised);
}

TEST_F(StateOfAWindow, ComesBackFromAReducedOneByTheStation) {
    show();
    window.state = WindowState::minimised;
    settle();
    window.state = WindowState::normal;
    settle();
    EXPECT_FALSE(view.isMinimized());
    EXPECT_FALSE(view.isMaximized());
    EXPECT_TRUE(view.isVisible());
}

TEST_F(StateOfAWindow, PlaceAndSizeOfAReducedOneAreNotTaken) {
    show();
    view.move(40, 30);
    view.resize(640, 480);
    settle();
    view.showMinimized();
    view.resize(300, 200);
    view.move(0, 0);
    settle();
    EXPECT_EQ(window.width.get(), Twips{9600});
    EXPECT_EQ(window.left.get(), Twips{600});
}

TEST_F(StateOfAWindow, PlaceAndSizeOfAMaximisedOneAreNotTaken) {
    show();
    view.move(40, 30);
    view.resize(640, 480);
    settle();
    view.showMaximized();
    settle();
    ASSERT_GT(view.width(), 640);
    ASSERT_EQ(view.pos(), QPoint(0, 0));
    EXPECT_EQ(window.width.get(), Twips{9600});
    EXPECT_EQ(window.height.get(), Twips{7200});
    EXPECT_EQ(window.left.get(), Twips{600});
    EXPECT_EQ(window.top.get(), Twips{450});
}

TEST_F(StateOfAWindow, WithoutASizeOfTheStationIsAsSmallAsItMay) {
    show();
    EXPECT_EQ(view.size(), QSize(300, 200));
    EXPECT_EQ(view.minimumSize(), QSize(300, 200));
}

TEST_F(StateOfAWindow, SizeIsNotTakenBeforeItIsSeen) {
    view.resize(640, 480);
    view.move(40, 30);
    settle();
    EXPECT_EQ(window.width.get(), Twips{0});
    EXPECT_EQ(window.left.get(), Twips{0});
}

TEST_F(StateOfAWindow, OnTopIsTheNativeWindows) {
    window.topmost = true;
    show();
    EXPECT_TRUE(view.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
    window.topmost = false;
    settle();
    EXPECT_FALSE(view.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(StateOfAWindow, BusyPointersAreShown) {
    window.mouse_pointer = 11;
    settle();
    EXPECT_EQ(view.cursor().shape(), Qt::WaitCursor);
    window.mouse_pointer = 13;
    settle();
    EXPECT_EQ(view.cursor().shape(), Qt::BusyCursor);
    window.mouse_pointer = 0;
    settle();
    EXPECT_EQ(view.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(StateOfAWindow, SizeThatTheOperatorGaveIsTold) {
    show();
    view.resize(640, 480);
    settle();
    EXPECT_EQ(window.width.get(), Twips{9600});
    EXPECT_EQ(window.height.get(), Twips{7200});
}

TEST_F(StateOfAWindow, SizeOfTheStationIsTaken) {
    show();
    window.width = Twips{9600};
    window.height = Twips{7200};
    settle();
    EXPECT_EQ(view.size(), QSize(640, 480));
}

TEST_F(StateOfAWindow, SizeOfTheStationWaitsWhileTheWindowIsMaximised) {
    show();
    view.showMaximized();
    settle();
    const QSize whole = view.size();
    window.width = Twips{9600};
    window.height = Twips{7200};
    settle();
    EXPECT_EQ(view.size(), whole);
}

TEST_F(StateOfAWindow, MovesOfThePointerAreTheWindows) {
    int moves = 0;
    window.on_mouse_move = [&] { ++moves; };
    show();
    QTest::mouseMove(&view, {50, 60});
    QTest::mouseMove(&view, {70, 80});
    EXPECT_GE(moves, 1);
}

TEST_F(StateOfAWindow, BusyPointerIsNoOtherPlace) {
    show();
    view.move(40, 30);
    settle();
    window.mouse_pointer = 11;
    settle();
    EXPECT_EQ(view.pos(), QPoint(40, 30));
}

TEST_F(StateOfAWindow, HeldReturnKeyPressesItsButtonOnce) {
    int presses = 0;
    button.on_click = [&] { ++presses; };
    QWidget* widget = Dresser{view}.button(button);
    show();
    QApplication::setActiveWindow(&view);
    widget->setFocus(Qt::TabFocusReason);
    for (const bool repeated : {false, true, true}) {
        QKeyEvent key{QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", repeated};
        QCoreApplication::sendEvent(view.windowHandle(), &key);
    }
    EXPECT_EQ(presses, 1);
}

TEST_F(StateOfAWindow, WithoutKeysOfItsOwnBeginsAtItsFirstField) {
    QWidget* widget = Dresser{view}.text_box(field);
    show();
    QApplication::setActiveWindow(&view);
    EXPECT_TRUE(widget->hasFocus());
}

} // namespace sonarelle
