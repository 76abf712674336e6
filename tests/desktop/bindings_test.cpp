#include <QSignalSpy>
#include <QTest>

#include "desktop/button_bindings.h"
#include "desktop/choice_bindings.h"
#include "desktop/colours.h"
#include "desktop/desktop_bench.h"
#include "desktop/range_bindings.h"
#include "desktop/text_bindings.h"

namespace sonarelle {

namespace {

using AnyBinding = DesktopBench;
using LabelBindings = DesktopBench;
using TextBoxBindings = DesktopBench;
using CheckBoxBindings = DesktopBench;
using OptionBindings = DesktopBench;
using ButtonBindings = DesktopBench;
using ImageBindings = DesktopBench;
using SliderBindings = DesktopBench;
using ProgressBindings = DesktopBench;
using ComboBoxBindings = DesktopBench;
using ListBoxBindings = DesktopBench;
using RichTextBindings = DesktopBench;

class CountingShown : public Shown {
public:
    void show_value() override { ++shown; }
    int shown = 0;
};

TEST_F(AnyBinding, TwentyChangesBetweenTwoPaintsAreShownOnce) {
    CountingShown label;
    for (int i = 0; i < 20; ++i)
        updates.mark(label);
    settle();
    EXPECT_EQ(label.shown, 1);
}

TEST_F(AnyBinding, NamesTheWidgetAfterTheControl) {
    Label label{window, "Étiquette"};
    StationLabel widget;
    const LabelBinding binding{label, widget, services};
    EXPECT_EQ(widget.objectName(), "Étiquette");
}

TEST_F(AnyBinding, HintIsToolTipAndAccessibleName) {
    Button button{window, "b"};
    StudioButton widget;
    const ButtonBinding binding{button, widget, services};
    button.hint = "Stopper";
    settle();
    EXPECT_EQ(widget.toolTip(), "Stopper");
    EXPECT_EQ(widget.accessibleName(), "Stopper");
}

TEST_F(AnyBinding, DisabledControlDisablesItsWidget) {
    Button button{window, "b"};
    StudioButton widget;
    const ButtonBinding binding{button, widget, services};
    button.enabled = false;
    settle();
    EXPECT_FALSE(widget.isEnabled());
}

TEST_F(AnyBinding, HiddenControlHidesItsWidget) {
    QWidget parent;
    Label label{window, "l"};
    StationLabel widget{&parent};
    const LabelBinding binding{label, widget, services};
    parent.show();
    label.visible = false;
    settle();
    EXPECT_FALSE(widget.isVisible());
}

TEST_F(AnyBinding, LetsGoOfItsControl) {
    Label label{window, "l"};
    {
        StationLabel widget;
        const LabelBinding binding{label, widget, services};
    }
    label.caption = "autre";
    settle();
    EXPECT_EQ(events, 0);
}

TEST_F(LabelBindings, CaptionIsShownWithoutItsAccessMark) {
    Label label{window, "l"};
    StationLabel widget;
    const LabelBinding binding{label, widget, services};
    label.caption = "S&uppr.";
    settle();
    EXPECT_EQ(widget.text(), "Suppr.");
}

TEST_F(LabelBindings, CarriageReturnsBecomeLines) {
    Label label{window, "l", "un\rdeux\r\ntrois"};
    StationLabel widget;
    const LabelBinding binding{label, widget, services};
    settle();
    EXPECT_EQ(widget.text(), "un\ndeux\ntrois");
}

TEST_F(LabelBindings, PressIsTheControlsClick) {
    Label label{window, "l", "Fermer"};
    int clicks = 0;
    label.on_click = [&] { ++clicks; };
    StationLabel widget;
    const LabelBinding binding{label, widget, services};
    settle();
    QTest::mouseClick(&widget, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
}

TEST_F(LabelBindings, ColourOfTheControlIsTheInk) {
    Label label{window, "l", "texte"};
    StationLabel widget;
    const LabelBinding binding{label, widget, services};
    label.fore_colour = 0x00FF00;
    settle();
    EXPECT_EQ(widget.palette().color(QPalette::Active, QPalette::WindowText), QColor(0, 255, 0));
}

TEST_F(LabelBindings, AnotherCaptionMovesNothing) {
    Label label{window, "l", "1"};
    StationLabel widget;
    const LabelBinding binding{label, widget, services};
    settle();
    const QSize before = widget.sizeHint();
    label.caption = "un texte bien plus long que le premier";
    settle();
    EXPECT_EQ(widget.sizeHint(), before);
}

TEST_F(TextBoxBindings, TextIsShown) {
    TextBox box{window, "t"};
    QLineEdit widget;
    const TextBoxBinding binding{box, widget, services};
    box.set_text("6");
    settle();
    EXPECT_EQ(widget.text(), "6");
}

TEST_F(TextBoxBindings, TypingChangesTheControlACharacterAtATime) {
    TextBox box{window, "t"};
    std::vector<std::string> seen;
    box.on_change = [&] { seen.push_back(box.text()); };
    QLineEdit widget;
    const TextBoxBinding binding{box, widget, services};
    settle();
    QTest::keyClicks(&widget, "12");
    EXPECT_EQ(seen, (std::vector<std::string>{"1", "12"}));
}

TEST_F(TextBoxBindings, WhatTheStationWritesIsNoEvent) {
    TextBox box{window, "t"};
    QLineEdit widget;
    const TextBoxBinding binding{box, widget, services};
    box.set_text("8");
    settle();
    EXPECT_EQ(events, 0);
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

TEST_F(ButtonBindings, CaptionIsShown) {
    GraphicButton button{window, "b"};
    StudioButton widget;
    const ButtonBinding binding{button, widget, services};
    button.caption = "Ok";
    settle();
    EXPECT_EQ(widget.text(), "Ok");
}

TEST_F(ButtonBindings, PressIsTheControlsClick) {
    Button button{window, "b"};
    int clicks = 0;
    button.on_click = [&] { ++clicks; };
    StudioButton widget;
    const ButtonBinding binding{button, widget, services};
    settle();
    QTest::keyClick(&widget, Qt::Key_Space);
    EXPECT_EQ(clicks, 1);
}

TEST_F(ButtonBindings, ThatRefusesTheSpaceBarWhileItIsDownComesUpAgain) {
    Button button{window, "b"};
    bool refuses = false;
    button.refuses_space = [&] { return refuses; };
    StudioButton widget;
    const ButtonBinding binding{button, widget, services};
    settle();
    QTest::keyPress(&widget, Qt::Key_Space);
    refuses = true;
    QTest::keyRelease(&widget, Qt::Key_Space);
    EXPECT_FALSE(widget.isDown());
}

TEST_F(ImageBindings, PressIsTheControlsClick) {
    Image image{window, "i"};
    int clicks = 0;
    image.on_click = [&] { ++clicks; };
    StudioButton widget;
    const ImageBinding binding{image, widget, services};
    settle();
    widget.click();
    EXPECT_EQ(clicks, 1);
}

TEST_F(SliderBindings, ValueIsShownAndIsNoEvent) {
    Slider slider{window, "s", 0, 20};
    QSlider widget;
    const SliderBinding binding{slider, widget, services};
    slider.set_value(7);
    settle();
    EXPECT_EQ(widget.value(), 7);
    EXPECT_EQ(events, 0);
}

TEST_F(SliderBindings, KeysMoveItByOneAndTheGrooveByFive) {
    Slider slider{window, "s", 0, 20};
    QSlider widget;
    const SliderBinding binding{slider, widget, services};
    widget.triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(slider.value(), 5);
    widget.triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(slider.value(), 6);
}

TEST_F(SliderBindings, MovingItChangesTheControl) {
    Slider slider{window, "s", 0, 20};
    int changes = 0;
    slider.on_change = [&] { ++changes; };
    QSlider widget;
    const SliderBinding binding{slider, widget, services};
    settle();
    widget.setValue(3);
    EXPECT_EQ(slider.value(), 3);
    EXPECT_EQ(changes, 1);
}

TEST_F(ProgressBindings, ValueIsAShareOfTheRange) {
    ProgressBar bar{window, "p"};
    ProgressStrip widget;
    const ProgressBinding binding{bar, widget, services};
    bar.maximum = 200;
    bar.value = 50;
    settle();
    EXPECT_DOUBLE_EQ(widget.share(), 0.25);
}

TEST_F(ProgressBindings, ValueCountsFromTheBeginningOfTheRange) {
    ProgressBar bar{window, "p"};
    ProgressStrip widget;
    const ProgressBinding binding{bar, widget, services};
    bar.minimum = 100;
    bar.maximum = 200;
    bar.value = 125;
    settle();
    EXPECT_DOUBLE_EQ(widget.share(), 0.25);
}

TEST_F(ProgressBindings, PressTellsItsPlaceInTheBarsUnits) {
    ProgressBar bar{window, "p"};
    int place = -1;
    bar.units_wide = 223;
    bar.on_click_at = [&](int x) { place = x; };
    ProgressStrip widget;
    widget.resize(200, 16);
    const ProgressBinding binding{bar, widget, services};
    settle();
    QTest::mouseClick(&widget, Qt::LeftButton, {}, {100, 8});
    EXPECT_EQ(place, 111);
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

TEST_F(RichTextBindings, TextGoesBothWays) {
    RichText text{window, "r"};
    QTextEdit widget;
    const RichTextBinding binding{text, widget, services};
    text.text = "Bonjour";
    settle();
    EXPECT_EQ(widget.toPlainText(), "Bonjour");
    QTest::keyClicks(&widget, "!");
    EXPECT_EQ(text.text.get(), "!Bonjour");
}

TEST(StudioColours, DesktopsTextReadsOnTheFaceOfToldButtons) {
    for (const Colour told : {0x8F8F8F, 49152, 192, 12583104, 12615680, 16033024, 65280})
        EXPECT_GE(contrast(studio::text, ground_for(desktop_text, told, studio::face)), readable) << told;
}

} // namespace

} // namespace sonarelle
