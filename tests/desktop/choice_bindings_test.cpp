#include <QTest>
#include <QWheelEvent>

#include "desktop/choice_bindings.h"
#include "desktop/desktop_fixture.h"
#include "desktop/pixels.h"

namespace sonarelle {

namespace {

using CheckBoxBindings = DesktopFixture;
using OptionBindings = DesktopFixture;
using ComboBoxBindings = DesktopFixture;
using ListBoxBindings = DesktopFixture;

/// Pixels of the mark that says "chosen".
int green_in(QWidget& widget) {
    const QImage picture = seen(widget);
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            count += pixel.green() > pixel.red() + 40 && pixel.green() > pixel.blue() + 20 ? 1 : 0;
        }
    return count;
}

TEST_F(CheckBoxBindings, ValueIsShown) {
    CheckBox box{window, "c", "Préchargement"};
    QCheckBox widget;
    const CheckBoxBinding binding{box, widget, services};
    box.set_value(1);
    settle();
    EXPECT_TRUE(widget.isChecked());
}

TEST_F(CheckBoxBindings, PressTicksTheControl) {
    CheckBox box{window, "c"};
    QCheckBox widget;
    const CheckBoxBinding binding{box, widget, services};
    settle();
    widget.click();
    EXPECT_EQ(box.value(), 1);
}

TEST_F(CheckBoxBindings, StaysClearWhereTheStationClearsItAgain) {
    CheckBox box{window, "c"};
    box.on_click = [&] { box.set_value(0); };
    QCheckBox widget;
    const CheckBoxBinding binding{box, widget, services};
    settle();
    widget.click();
    settle();
    EXPECT_FALSE(widget.isChecked());
}

TEST_F(CheckBoxBindings, PressThatTheStationDoesntTakeLeavesNoTick) {
    CheckBox box{window, "c"};
    QCheckBox widget;
    const CheckBoxBinding binding{box, widget, services};
    settle();
    box.enabled = false; // and the box on the screen doesn't know yet
    widget.click();
    EXPECT_FALSE(widget.isChecked());
}

TEST_F(CheckBoxBindings, IsReachedByTheKeyboardAndKeepsNoKeyboardFromAPress) {
    CheckBox box{window, "c"};
    QCheckBox widget;
    const CheckBoxBinding of_box{box, widget, services};
    OptionGroup group;
    OptionButton option{window, group, "o"};
    QRadioButton radio;
    const OptionBinding of_option{option, radio, services};
    EXPECT_EQ(widget.focusPolicy(), Qt::TabFocus);
    EXPECT_EQ(radio.focusPolicy(), Qt::TabFocus);
}

TEST_F(OptionBindings, ChoosingOneClearsTheOther) {
    OptionGroup group;
    OptionButton first{window, group, "o1"};
    OptionButton second{window, group, "o2"};
    QRadioButton first_widget;
    QRadioButton second_widget;
    const OptionBinding first_binding{first, first_widget, services};
    const OptionBinding second_binding{second, second_widget, services};
    first.set_value(true);
    settle();
    second_widget.click();
    settle();
    EXPECT_FALSE(first_widget.isChecked());
    EXPECT_TRUE(second_widget.isChecked());
}

TEST_F(OptionBindings, ShownWithoutBeingChosenRaisesNothing) {
    OptionGroup group;
    OptionButton option{window, group, "o1"};
    int clicks = 0;
    option.on_click = [&] { ++clicks; };
    QRadioButton widget;
    const OptionBinding binding{option, widget, services};
    option.show_value(true);
    settle();
    EXPECT_TRUE(widget.isChecked());
    EXPECT_EQ(clicks, 0);
}

TEST_F(OptionBindings, StaysClearWhereTheStationClearsItAgain) {
    OptionGroup group;
    OptionButton option{window, group, "o1"};
    option.on_click = [&] { option.show_value(false); };
    QRadioButton widget;
    const OptionBinding binding{option, widget, services};
    settle();
    widget.click();
    EXPECT_FALSE(widget.isChecked());
}

TEST_F(CheckBoxBindings, TickIsSeenAndIsNoGreen) {
    CheckBox box{window, "c", "Préchargement"};
    QCheckBox widget;
    const CheckBoxBinding binding{box, widget, services};
    settle();
    widget.resize(160, 24);
    EXPECT_GT(count_of(seen(widget), studio::well), 150);
    box.set_value(1);
    settle();
    EXPECT_GT(count_of(seen(widget), studio::second), 100);
    EXPECT_EQ(green_in(widget), 0); // which is the air's
}

TEST_F(CheckBoxBindings, CaptionIsShownInItsColour) {
    CheckBox box{window, "c", "&Préchargement"};
    QCheckBox widget;
    const CheckBoxBinding binding{box, widget, services};
    box.fore_colour = 0x00FFFF;
    settle();
    EXPECT_EQ(widget.text(), "Préchargement");
    EXPECT_EQ(widget.palette().color(QPalette::Active, QPalette::WindowText), QColor(0xff, 0xff, 0));
    EXPECT_EQ(widget.palette().color(QPalette::Inactive, QPalette::WindowText), QColor(0xff, 0xff, 0));
}

TEST_F(OptionBindings, MarkIsTheAirsGreenOnARingThatIsSeen) {
    OptionGroup group;
    OptionButton option{window, group, "o1", "Mixer une &liste"};
    QRadioButton widget;
    const OptionBinding binding{option, widget, services};
    settle();
    EXPECT_EQ(widget.text(), "Mixer une liste");
    widget.resize(160, 24);
    EXPECT_GT(count_of(seen(widget), QColor(0x4a, 0x51, 0x5c)), 40);
    EXPECT_EQ(green_in(widget), 0);
    option.show_value(true);
    settle();
    EXPECT_GT(green_in(widget), 6);
}

TEST_F(OptionBindings, CaptionIsShownInItsColour) {
    OptionGroup group;
    OptionButton option{window, group, "o1", "Mixer une liste"};
    QRadioButton widget;
    const OptionBinding binding{option, widget, services};
    option.fore_colour = 0x00FFFF;
    settle();
    EXPECT_EQ(widget.palette().color(QPalette::Active, QPalette::WindowText), QColor(0xff, 0xff, 0));
}

TEST_F(ComboBoxBindings, ItemsAndTextAreShown) {
    ComboBox box{window, "c", "Favoris "};
    QComboBox widget;
    const ComboBoxBinding binding{box, widget, services};
    box.items = {"un", "deux"};
    settle();
    EXPECT_EQ(widget.count(), 2);
    EXPECT_EQ(widget.currentText(), "Favoris ");
}

TEST_F(ComboBoxBindings, ChoosingAnEntryChoosesItInTheControl) {
    ComboBox box{window, "c"};
    int clicks = 0;
    box.on_click = [&] { ++clicks; };
    QComboBox widget;
    const ComboBoxBinding binding{box, widget, services};
    box.items = {"un", "deux"};
    settle();
    emit widget.activated(1);
    EXPECT_EQ(box.text(), "deux");
    EXPECT_EQ(clicks, 1);
}

TEST_F(ComboBoxBindings, SpaceGoesToTheControlAndIsNotTyped) {
    ComboBox box{window, "c", "Jingles"};
    std::u32string keys;
    box.on_key_press = [&](char32_t key) { keys += key; };
    QComboBox widget;
    const ComboBoxBinding binding{box, widget, services};
    settle();
    QTest::keyClick(widget.lineEdit(), Qt::Key_Space);
    EXPECT_EQ(keys, U" ");
    EXPECT_EQ(box.text(), "Jingles");
}

TEST_F(ComboBoxBindings, TypedTextIsTheControls) {
    ComboBox box{window, "c"};
    QComboBox widget;
    const ComboBoxBinding binding{box, widget, services};
    settle();
    QTest::keyClicks(widget.lineEdit(), "Jazz");
    EXPECT_EQ(box.text(), "Jazz");
    box.set_text("Rock");
    settle();
    EXPECT_EQ(widget.currentText(), "Rock");
}

TEST_F(ComboBoxBindings, TypingInTheMidstGoesOnThere) {
    ComboBox box{window, "c"};
    QComboBox widget;
    const ComboBoxBinding binding{box, widget, services};
    box.set_text("ad");
    settle();
    widget.lineEdit()->setCursorPosition(1);
    for (const char letter : {'b', 'c'}) {
        QTest::keyClick(widget.lineEdit(), letter);
        settle();
    }
    EXPECT_EQ(box.text(), "abcd");
}

TEST_F(ComboBoxBindings, SpaceIsTypedWhereTheControlDoesNotAnswerIt) {
    ComboBox box{window, "c", "Hip"};
    QComboBox widget;
    const ComboBoxBinding binding{box, widget, services};
    settle();
    QTest::keyClick(widget.lineEdit(), Qt::Key_Space);
    EXPECT_EQ(box.text(), "Hip ");
}

TEST_F(ComboBoxBindings, OtherItemsOfTheSameNumberAreShown) {
    ComboBox box{window, "c"};
    QComboBox widget;
    const ComboBoxBinding binding{box, widget, services};
    box.items = {"un", "deux"};
    settle();
    box.items = {"trois", "quatre"};
    settle();
    EXPECT_EQ(widget.itemText(1), "quatre");
    EXPECT_EQ(widget.count(), 2);
}

TEST_F(ComboBoxBindings, FieldThatCantBeReachedAnyMoreGivesTheKeyboardToItsWindow) {
    ComboBox box{window, "c", "Jingles"};
    QWidget page;
    QComboBox widget{&page};
    const QLineEdit next{&page};
    const ComboBoxBinding binding{box, widget, services};
    settle();
    page.show();
    QApplication::setActiveWindow(&page);
    widget.lineEdit()->setFocus();
    box.enabled = false;
    settle();
    EXPECT_EQ(page.focusWidget(), &page);
}

TEST_F(ComboBoxBindings, TypingChoosesNoEntryAndAddsNone) {
    ComboBox box{window, "c"};
    QComboBox widget;
    const ComboBoxBinding binding{box, widget, services};
    box.items = {"Jazz", "Rock"};
    settle();
    QTest::keyClicks(widget.lineEdit(), "Ja");
    EXPECT_EQ(widget.currentText(), "Ja"); // which nothing completes
    QTest::keyClicks(widget.lineEdit(), "va");
    QTest::keyClick(widget.lineEdit(), Qt::Key_Return);
    settle();
    EXPECT_EQ(widget.count(), 2);
    EXPECT_EQ(box.text(), "Java");
}

TEST_F(ComboBoxBindings, SelectionOfTheStationIsShown) {
    ComboBox box{window, "c"};
    QComboBox widget;
    const ComboBoxBinding binding{box, widget, services};
    box.items = {"Jazz", "Rock"};
    settle();
    box.choose(1);
    settle();
    EXPECT_EQ(widget.currentIndex(), 1);
    EXPECT_EQ(widget.currentText(), "Rock");
    EXPECT_EQ(events, 0);
}

TEST_F(ComboBoxBindings, WheelTurnsThroughTheEntriesOnlyWithTheKeyboard) {
    ComboBox box{window, "c"};
    QComboBox widget;
    const ComboBoxBinding binding{box, widget, services};
    box.items = {"Jazz", "Rock"};
    settle();
    box.choose(0);
    settle();
    widget.show();
    const auto turn = [&] {
        QWheelEvent down{{5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false};
        QCoreApplication::sendEvent(&widget, &down);
        return widget.currentIndex();
    };
    QApplication::setActiveWindow(&widget);
    widget.clearFocus();
    EXPECT_EQ(turn(), 0);
    widget.setFocus();
    EXPECT_EQ(turn(), 1);
}

TEST_F(ListBoxBindings, SelectionOfNoRowIsNoEvent) {
    ListBox box{window, "l"};
    QListWidget widget;
    const ListBoxBinding binding{box, widget, services};
    box.items = {"un", "deux"};
    settle();
    widget.setCurrentRow(0);
    widget.setCurrentRow(-1);
    EXPECT_EQ(box.selected, 0);
    EXPECT_EQ(events, 1);
}

TEST_F(ListBoxBindings, OtherItemsOfTheSameNumberAreShown) {
    ListBox box{window, "l"};
    QListWidget widget;
    const ListBoxBinding binding{box, widget, services};
    box.items = {"un", "deux"};
    settle();
    box.items = {"trois", "quatre"};
    settle();
    EXPECT_EQ(widget.item(1)->text(), "quatre");
    EXPECT_EQ(widget.count(), 2);
}

TEST_F(ListBoxBindings, ChoosingARowChoosesItInTheControl) {
    ListBox box{window, "l"};
    QListWidget widget;
    const ListBoxBinding binding{box, widget, services};
    box.items = {"un", "deux"};
    settle();
    widget.setCurrentRow(1);
    EXPECT_EQ(box.selected, 1);
}

TEST_F(ListBoxBindings, SelectionOfTheStationIsShownAndIsNoEvent) {
    ListBox box{window, "l"};
    QListWidget widget;
    const ListBoxBinding binding{box, widget, services};
    box.items = {"un", "deux"};
    box.selected = 1;
    settle();
    EXPECT_EQ(widget.currentRow(), 1);
    EXPECT_EQ(events, 0);
}

} // namespace

} // namespace sonarelle
