// The keys of the warning window, which comes up by itself while the station is on the air.
#include <QAbstractButton>

#include "desktop/whole_desk_fixture.h"

namespace sonarelle {

namespace {

class WarningWindow : public WholeDesk {
protected:
    WarningWindow() {
        station.notices.warn("Ce fichier est NON TROUVE !");
        settle();
        take_keyboard(&view());
    }

    [[nodiscard]] QWidget& view() { return widget_of(station.warning_window); }
    [[nodiscard]] QAbstractButton& button(const char* name) { return *view().findChild<QAbstractButton*>(name); }
    void press_in_it(Qt::Key code, const QString& text) {
        key(view(), code, text);
        settle();
    }
};

} // namespace

TEST_F(WarningWindow, ClosesByReturn) {
    press_in_it(Qt::Key_Return, "\r");
    EXPECT_FALSE(view().isVisible());
}

TEST_F(WarningWindow, ClosesByTheEnterKeyOfTheNumbers) {
    press_in_it(Qt::Key_Enter, "\r");
    EXPECT_FALSE(view().isVisible());
}

TEST_F(WarningWindow, ClosesByEscape) {
    press_in_it(Qt::Key_Escape, "\x1b");
    EXPECT_FALSE(view().isVisible());
}

TEST_F(WarningWindow, StaysUnderAReturnKeyThatWasHeldBeforeItCame) {
    QKeyEvent held{QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true};
    QCoreApplication::sendEvent(view().windowHandle(), &held);
    settle();
    EXPECT_TRUE(view().isVisible());
}

TEST_F(WarningWindow, StaysUnderASpaceThatNoButtonWasGivenFor) {
    press_in_it(Qt::Key_Space, " ");
    EXPECT_TRUE(view().isVisible());
}

TEST_F(WarningWindow, ClosesBySpaceOnItsButton) {
    button("AnyButton1").setFocus(Qt::TabFocusReason);
    press_in_it(Qt::Key_Space, " ");
    EXPECT_FALSE(view().isVisible());
}

TEST_F(WarningWindow, TellsTheCountByReturnOnItsOtherButton) {
    button("AnyButton2").setFocus(Qt::TabFocusReason);
    press_in_it(Qt::Key_Return, "\r");
    EXPECT_TRUE(view().isVisible());
    EXPECT_NE(station.warning_window.lines.caption.get().find("Nombre de fichiers"), std::string::npos);
}

TEST_F(WarningWindow, GivesTheKeyboardBackToTheDesk) {
    press_in_it(Qt::Key_Escape, "\x1b");
    EXPECT_EQ(QApplication::activeWindow(), &main_view());
    EXPECT_TRUE(window_has_keyboard());
}

TEST_F(WarningWindow, TakesNoKeyboardFromAnotherWindowByClosing) {
    station.list_window.show();
    settle();
    take_keyboard(&widget_of(station.list_window));
    station.warning_window.hide();
    settle();
    EXPECT_EQ(QApplication::activeWindow(), &widget_of(station.list_window));
}

} // namespace sonarelle
