#include <QAbstractItemView>
#include <QTest>
#include <QWheelEvent>

#include "desktop/choice_bindings.h"
#include "desktop/desktop_fixture.h"

namespace sonarelle {

namespace {

/// A box whose entries can be chosen and whose text can't be typed, with the keyboard.
class ChooserBindings : public DesktopFixture {
protected:
    ChooserBindings() {
        box.items = {"un", "deux"};
        settle();
        widget.show();
        QApplication::setActiveWindow(&widget);
        widget.setFocus(Qt::TabFocusReason);
    }

    struct Chooser : ComboBox {
        explicit Chooser(Window& parent)
            : ComboBox{parent, "c", "Favoris Sonarelle"} {
            takes_typing = false;
        }
    };
    Chooser box{window};
    QComboBox widget;
    ComboBoxBinding binding{box, widget, services};
};

} // namespace

TEST_F(ChooserBindings, ShowsATextThatIsNoEntry) {
    EXPECT_EQ(widget.placeholderText(), "Favoris Sonarelle");
    EXPECT_EQ(widget.currentIndex(), -1);
}

TEST_F(ChooserBindings, ShowsTheChosenEntry) {
    emit widget.activated(1);
    settle();
    EXPECT_EQ(widget.currentText(), "deux");
}

TEST_F(ChooserBindings, ChosenEntryCanBeChosenAgainUnderAnotherText) {
    emit widget.activated(1);
    box.set_text("Favoris Sonarelle");
    settle();
    EXPECT_EQ(widget.currentIndex(), -1);
}

TEST_F(ChooserBindings, LooksForNoEntryByALetter) {
    QTest::keyClick(&widget, Qt::Key_D);
    settle();
    EXPECT_EQ(widget.currentIndex(), -1);
    EXPECT_EQ(box.selected, -1);
}

TEST_F(ChooserBindings, OpensItsListByAnArrow) {
    int clicks = 0;
    box.on_click = [&] { ++clicks; };
    QTest::keyClick(&widget, Qt::Key_Down);
    EXPECT_TRUE(widget.view()->isVisible());
    EXPECT_EQ(clicks, 0);
    widget.hidePopup();
}

TEST_F(ChooserBindings, SpaceGivesTheKeyboardToTheWindowAndLettersDont) {
    QWidget page;
    widget.setParent(&page);
    page.show();
    widget.show();
    QApplication::setActiveWindow(&page);
    widget.setFocus(Qt::TabFocusReason);
    std::u32string keys;
    box.on_key_press = [&](char32_t key) { keys += key; };
    QTest::keyClick(&widget, Qt::Key_D);
    EXPECT_TRUE(widget.hasFocus());
    QTest::keyClick(&widget, Qt::Key_Space);
    EXPECT_FALSE(widget.hasFocus());
    EXPECT_EQ(page.focusWidget(), &page);
    EXPECT_EQ(keys, U"d ");
    widget.setParent(nullptr);
}

TEST_F(ChooserBindings, ChoiceGivesTheKeyboardToTheWindow) {
    QWidget page;
    widget.setParent(&page);
    page.show();
    widget.show();
    QApplication::setActiveWindow(&page);
    widget.setFocus(Qt::TabFocusReason);
    emit widget.activated(1);
    EXPECT_EQ(page.focusWidget(), &page);
    widget.setParent(nullptr);
}

TEST_F(ChooserBindings, WheelChoosesNothing) {
    QWheelEvent turn{{5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false};
    QCoreApplication::sendEvent(&widget, &turn);
    EXPECT_EQ(box.selected, -1);
}

} // namespace sonarelle
