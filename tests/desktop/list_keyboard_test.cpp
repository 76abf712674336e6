// Where the keyboard is in the list window, and what its keys do there.
#include <QWindow>

#include "desktop/list_window_fixture.h"

namespace sonarelle {

namespace {

class KeyboardOfTheList : public ListWindow {
protected:
    KeyboardOfTheList() {
        for (Image* image : transport()) {
            image->enabled = true;
            image->on_click = [this, image] { pressed.push_back(image->name()); };
        }
        rows_of_three();
        QApplication::setActiveWindow(&list_view());
        settle();
    }
    [[nodiscard]] std::array<Image*, 3> transport() { return {&list().play_list, &list().zap, &list().stop_decks}; }
    [[nodiscard]] std::string focus() { return list_view().focusWidget()->objectName().toStdString(); }
    void key(Qt::Key code, const QString& text = {}) {
        QTest::sendKeyEvent(QTest::Click, list_view().windowHandle(), code, text, Qt::NoModifier);
        settle();
    }

    [[nodiscard]] QWidget& search_box() { return part(list_view(), "Combo1"); }

    std::vector<std::string> pressed;
};

} // namespace

TEST_F(KeyboardOfTheList, IsWithTheRowsAtTheFirst) {
    EXPECT_EQ(focus(), "ListView1");
}

TEST_F(KeyboardOfTheList, GoesFromTheModesToTheFoot) {
    part(list_view(), "Option1").setFocus(Qt::TabFocusReason);
    std::vector<std::string> way{focus()};
    for (int stop = 1; stop < 20; ++stop) {
        key(Qt::Key_Tab, "\t");
        way.push_back(focus());
    }
    EXPECT_EQ(way,
              (std::vector<std::string>{"Option1", "Option2", "Option3", "Option4", "Image13", "Image14", "ListView1",
                                        "Image1",  "Image2",  "Image3",  "Image4",  "Image5",  "Label5",  "Label6",
                                        "Label7",  "Label8",  "Image6",  "Label11", "Image7",  "Label9"}));
}

TEST_F(KeyboardOfTheList, ComesRoundToTheModesByTheHeader) {
    part(list_view(), "Label9").setFocus(Qt::TabFocusReason);
    std::vector<std::string> way;
    for (int stop = 0; stop < 5; ++stop) {
        key(Qt::Key_Tab, "\t");
        way.push_back(focus());
    }
    EXPECT_EQ(way, (std::vector<std::string>{"Label1", "Label12", "Combo1", "Label10", "Option1"}));
}

TEST_F(KeyboardOfTheList, SpaceBarPressesNoTransport) {
    for (const Image* image : transport()) {
        part(list_view(), image->name()).setFocus(Qt::TabFocusReason);
        key(Qt::Key_Space, " ");
        EXPECT_TRUE(pressed.empty()) << image->name();
    }
}

TEST_F(KeyboardOfTheList, ReturnPressesTheTransport) {
    for (const Image* image : transport()) {
        part(list_view(), image->name()).setFocus(Qt::TabFocusReason);
        key(Qt::Key_Return, "\r");
    }
    EXPECT_EQ(pressed, (std::vector<std::string>{"Image1", "Image2", "Image3"}));
}

TEST_F(KeyboardOfTheList, PressOfATransportButtonLeavesItWithTheRows) {
    for (const Image* image : transport()) {
        QTest::mouseClick(&part(list_view(), image->name()), Qt::LeftButton);
        EXPECT_EQ(focus(), "ListView1") << image->name();
    }
}

TEST_F(KeyboardOfTheList, GoesToTheRowsWhenItsButtonCantBePressedAnyMore) {
    part(list_view(), "Image2").setFocus(Qt::TabFocusReason);
    list().zap.enabled = false;
    settle();
    EXPECT_EQ(focus(), "ListView1");
}

TEST_F(KeyboardOfTheList, SpaceBarTurnsASwitch) {
    int presses = 0;
    list().jingles_switch.on_click = [&] { ++presses; };
    part(list_view(), list().jingles_switch.name()).setFocus(Qt::TabFocusReason);
    key(Qt::Key_Space, " ");
    EXPECT_EQ(presses, 1);
}

TEST_F(KeyboardOfTheList, LettersAreTheWindowsCommandsEverywhere) {
    QString heard;
    list().on_key_press = [&](char32_t c) { heard += QString::fromUcs4(&c, 1); };
    for (QWidget* part : list_view().content().findChildren<QWidget*>()) {
        const bool is_field = part == &search_box() || part->parent() == &search_box();
        if (is_field || !part->isVisible() || !part->isEnabled() || part->focusPolicy() == Qt::NoFocus)
            continue;
        part->setFocus(Qt::TabFocusReason);
        heard.clear();
        key(Qt::Key_Z, "z");
        EXPECT_EQ(heard, "z") << part->objectName().toStdString();
        EXPECT_EQ(list().rows.selected(), 0);
    }
}

TEST_F(KeyboardOfTheList, FocusIsSeenOnEveryStop) {
    for (const char* name : {"Image13", "Image1", "Image2", "Image3", "Image4", "Label8"}) {
        QWidget& widget = part(list_view(), name);
        const int before = count_of(seen_in_window(widget), studio::focus);
        widget.setFocus(Qt::TabFocusReason);
        settle();
        EXPECT_GT(count_of(seen_in_window(widget), studio::focus), before + 60) << name;
    }
}

} // namespace sonarelle
