// The colours of the settings on a window, kind by kind.
#include "configuration/painting.h"

#include <gtest/gtest.h>

#include <array>

namespace sonarelle {

namespace {

class PaintingTest : public testing::Test {
protected:
    PaintingTest() {
        settings.coul_texte_liste = 1;
        settings.coul_label = 2;
        settings.coul_text_bouton = 3;
        settings.coul_fond_liste = 4;
        settings.coul_fenetre = 5;
        settings.coul_bouton = 6;
    }
    static void expect_colours(const Control& control, Colour fore, Colour back) {
        EXPECT_EQ(control.fore_colour.get(), fore) << control.name();
        EXPECT_EQ(control.back_colour.get(), back) << control.name();
    }

    StationSettings settings;
    Window window{"feuille"};
};

} // namespace

TEST_F(PaintingTest, GivesEachKindItsOwnColours) {
    OptionGroup group;
    Label label{window, "Label1"};
    CheckBox check{window, "Check1"};
    OptionButton option{window, group, "Option1"};
    Frame frame{window, "Frame1"};
    Button button{window, "Command1"};
    TextBox text{window, "Text1"};
    ComboBox combo{window, "Combo1"};
    ListBox list{window, "List1"};
    ProgressBar bar{window, "Bar1"};
    paint(window, settings);
    expect_colours(window, desktop_text, 5);
    expect_colours(label, 2, desktop_face);
    expect_colours(check, 2, 5);
    expect_colours(option, 2, 5);
    expect_colours(frame, desktop_text, 5);
    expect_colours(button, desktop_text, 5);
    expect_colours(text, 2, 4);
    expect_colours(combo, 2, 4);
    expect_colours(list, 1, 4);
    expect_colours(bar, 1, desktop_face);
}

TEST_F(PaintingTest, GivesDrawnButtonsColoursForThePointerAndForBeingDown) {
    GraphicButton button{window, "AnyButton1"};
    paint(window, settings);
    expect_colours(button, 3, 5);
    EXPECT_EQ(button.back_colour_down.get(), 4);
    EXPECT_EQ(button.back_colour_over.get(), 4);
    EXPECT_EQ(button.fore_colour_down.get(), 3);
    EXPECT_EQ(button.fore_colour_over.get(), 3);
}

TEST_F(PaintingTest, GivesPlainButtonsTheButtonColourWhereTheWindowAsksForIt) {
    Button button{window, "Command1"};
    paint(window, settings, ButtonColour::of_buttons);
    expect_colours(button, desktop_text, 6);
}

TEST_F(PaintingTest, TakesTheButtonColourInTheDialogsAlone) {
    Window options{"Form_options"};
    Button save{options, "Command3"};
    Window main{"Antenne_FM"};
    Button open{main, "Command1"};
    paint_station_window(options, settings);
    paint_station_window(main, settings);
    EXPECT_EQ(save.back_colour.get(), 6);
    EXPECT_EQ(open.back_colour.get(), 5);
}

TEST_F(PaintingTest, LeavesTheWarningAsTheDesktopHasIt) {
    Window warning{"err_form"};
    Label text{warning, "Label1"};
    paint_station_window(warning, settings);
    expect_colours(warning, desktop_text, desktop_face);
    expect_colours(text, desktop_text, desktop_face);
}

TEST_F(PaintingTest, FillsTheBoxesOfTheHourlyStyles) {
    Window styles{"Form_options_jingles"};
    TextBox hour{styles, "Text1"};
    paint_station_window(styles, settings);
    EXPECT_EQ(hour.text(), "*.mp3 - *.wav");
}

TEST_F(PaintingTest, HoverFollowsTheLabelColourInForce) {
    Label first{window, "Label1"};
    Label second{window, "Label2"};
    connect_hover(window, std::array{&first, &second}, settings);
    settings.coul_label = 100;
    first.mouse_move();
    second.mouse_move();
    EXPECT_EQ(first.fore_colour.get(), 18100);
    window.mouse_move();
    EXPECT_EQ(first.fore_colour.get(), 100);
    EXPECT_EQ(second.fore_colour.get(), 100);
}

TEST_F(PaintingTest, HoverCarriesNoByteIntoTheNext) {
    Label label{window, "Label1"};
    connect_hover(window, std::array{&label}, settings);
    settings.coul_label = 0xFF80F0;
    label.mouse_move();
    EXPECT_EQ(label.fore_colour.get(), 0xFFC6FF);
}

TEST_F(PaintingTest, HoverLeavesWhiteWhite) {
    Label label{window, "Label1"};
    connect_hover(window, std::array{&label}, settings);
    settings.coul_label = 0xFFFFFF;
    label.mouse_move();
    EXPECT_EQ(label.fore_colour.get(), 0xFFFFFF);
}

TEST_F(PaintingTest, HoverLeavesAColourOfTheDesktop) {
    Label label{window, "Label1"};
    connect_hover(window, std::array{&label}, settings);
    settings.coul_label = desktop_text;
    label.mouse_move();
    EXPECT_EQ(label.fore_colour.get(), desktop_text);
}

} // namespace sonarelle
