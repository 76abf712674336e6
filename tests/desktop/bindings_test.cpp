#include <QTest>
#include <QToolTip>

#include "desktop/button_bindings.h"
#include "desktop/colours.h"
#include "desktop/desktop_fixture.h"
#include "desktop/pixels.h"
#include "desktop/range_bindings.h"
#include "desktop/text_bindings.h"

namespace sonarelle {

namespace {

using LabelBindings = DesktopFixture;
using TextBoxBindings = DesktopFixture;
using ButtonBindings = DesktopFixture;
using ImageBindings = DesktopFixture;
using SliderBindings = DesktopFixture;
using ProgressBindings = DesktopFixture;
using RichTextBindings = DesktopFixture;

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

TEST_F(TextBoxBindings, TypingInTheMidstGoesOnThere) {
    TextBox box{window, "t"};
    QLineEdit widget;
    const TextBoxBinding binding{box, widget, services};
    box.set_text("ad");
    settle();
    widget.setCursorPosition(1);
    for (const char letter : {'b', 'c'}) {
        QTest::keyClick(&widget, letter);
        settle();
    }
    EXPECT_EQ(box.text(), "abcd");
}

TEST_F(TextBoxBindings, WhatTheStationWritesIsNoEvent) {
    TextBox box{window, "t"};
    QLineEdit widget;
    const TextBoxBinding binding{box, widget, services};
    box.set_text("8");
    settle();
    EXPECT_EQ(events, 0);
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

TEST_F(ProgressBindings, CaptionIsWrittenOverTheBar) {
    ProgressBar bar{window, "p"};
    ProgressStrip widget;
    const ProgressBinding binding{bar, widget, services};
    widget.resize(200, 24);
    settle();
    EXPECT_EQ(count_of(seen(widget), studio::text), 0);
    bar.caption = "&Vérification";
    settle();
    EXPECT_GT(count_of(seen(widget), studio::text), 20);
}

TEST_F(ProgressBindings, BarOfNoRangeIsEmpty) {
    ProgressBar bar{window, "p"};
    ProgressStrip widget;
    const ProgressBinding binding{bar, widget, services};
    bar.maximum = 0;
    bar.value = 5;
    settle();
    EXPECT_EQ(widget.share(), 0);
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

TEST_F(ProgressBindings, PressThatTheStationRefusesIsToldAndIsNoEvent) {
    ProgressBar bar{window, "p"};
    bar.on_click_at = [](int) {};
    bar.refusal = [] { return "À l'antenne"; };
    ProgressStrip widget;
    widget.resize(200, 16);
    const ProgressBinding binding{bar, widget, services};
    settle();
    widget.show();
    QTest::mouseClick(&widget, Qt::LeftButton, {}, {100, 8});
    EXPECT_EQ(events, 0);
    EXPECT_EQ(QToolTip::text(), "À l'antenne");
}

TEST_F(ProgressBindings, OnlyABarWithPlacesTakesTheKeyboard) {
    ProgressBar bar{window, "p"};
    ProgressStrip plain;
    { const ProgressBinding binding{bar, plain, services}; }
    EXPECT_EQ(plain.focusPolicy(), Qt::NoFocus);
    bar.on_click_at = [](int) {};
    ProgressStrip widget;
    const ProgressBinding binding{bar, widget, services};
    EXPECT_EQ(widget.focusPolicy(), Qt::TabFocus);
}

TEST_F(ProgressBindings, MoveOverTheBarTellsItsPlaceInTheBarsUnits) {
    ProgressBar bar{window, "p"};
    bar.units_wide = 223;
    int place = -1;
    bar.on_mouse_move_at = [&](int x) { place = x; };
    ProgressStrip widget;
    const ProgressBinding binding{bar, widget, services};
    widget.on_move(0.5);
    EXPECT_EQ(place, 111);
}

TEST_F(ProgressBindings, MoveThatNobodyAsksForIsNoEvent) {
    ProgressBar bar{window, "p"};
    ProgressStrip widget;
    const ProgressBinding binding{bar, widget, services};
    widget.on_move(0.5);
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

TEST_F(RichTextBindings, TypingInTheMidstGoesOnThere) {
    RichText text{window, "r"};
    QTextEdit widget;
    const RichTextBinding binding{text, widget, services};
    text.text = "ad";
    settle();
    widget.moveCursor(QTextCursor::Right);
    for (const char letter : {'b', 'c'}) {
        QTest::keyClick(&widget, letter);
        settle();
    }
    EXPECT_EQ(text.text.get(), "abcd");
}

TEST_F(RichTextBindings, SelectionGoesBothWays) {
    RichText text{window, "r"};
    QTextEdit widget;
    const RichTextBinding binding{text, widget, services};
    text.text = "Bonjour";
    text.selection_start = 3;
    text.selection_length = 4;
    settle();
    EXPECT_EQ(widget.textCursor().selectedText(), "jour");
    QTextCursor cursor = widget.textCursor();
    cursor.setPosition(0);
    cursor.setPosition(3, QTextCursor::KeepAnchor);
    widget.setTextCursor(cursor);
    EXPECT_EQ(text.selection_start.get(), 0);
    EXPECT_EQ(text.selection_length.get(), 3);
}

TEST(StudioColours, DesktopsTextReadsOnTheFaceOfToldButtons) {
    for (const Colour told : {0x8F8F8F, 49152, 192, 12583104, 12615680, 16033024, 65280})
        EXPECT_GE(contrast(studio::text, ground_for(desktop_text, told, studio::control)), readable) << told;
}

} // namespace

} // namespace sonarelle
