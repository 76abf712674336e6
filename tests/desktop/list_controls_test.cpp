// What is pressed in the list window: its modes, its switches, its buttons.
#include <QRadioButton>

#include "desktop/list_window_fixture.h"

namespace sonarelle {

TEST_F(ListWindow, ModeHasOneIndicatorThatFollowsItsOption) {
    const std::array<std::pair<Image*, OptionButton*>, 4> modes{{{&list().player_lamp, &list().player_mode},
                                                                 {&list().random_lamp, &list().random_mode},
                                                                 {&list().defined_end_lamp, &list().defined_end_mode},
                                                                 {&list().full_length_lamp, &list().full_length_mode}}};
    for (const auto& [image, option] : modes) {
        option->show_value(true);
        settle();
        for (const auto& [lamp, other] : modes) {
            const QImage shown = seen_in_window(part(list_view(), lamp->name()));
            EXPECT_EQ(count_of(shown, studio::air) > 20, other == option) << lamp->name();
        }
    }
}

TEST_F(ListWindow, PictureOfAModeCantContradictIt) {
    list().full_length_mode.show_value(true);
    settle();
    const QImage before = seen(list_view());
    list().player_lamp.picture = "bouton_on.jpg";
    list().full_length_lamp.picture = "bouton_off.jpg";
    settle();
    EXPECT_EQ(seen(list_view()), before);
}

TEST_F(ListWindow, WholeSegmentOfAModeCanBePressed) {
    int presses = 0;
    list().random_mode.on_click = [&] { ++presses; };
    QWidget& segment = *part(list_view(), "Option2").parentWidget();
    QTest::mouseClick(&segment, Qt::LeftButton, {}, {1, 1});
    EXPECT_EQ(presses, 1);
}

TEST_F(ListWindow, LampAndWordsOfAModeBothChooseIt) {
    int lamp_presses = 0;
    int word_presses = 0;
    list().random_lamp.on_click = [&] { ++lamp_presses; };
    list().random_mode.on_click = [&] { ++word_presses; };
    part<QAbstractButton>(list_view(), "Image9").click();
    part<QRadioButton>(list_view(), "Option2").click();
    EXPECT_EQ(lamp_presses, 1);
    EXPECT_EQ(word_presses, 1);
}

TEST_F(ListWindow, LampOfAModeIsNoStopOfTheKeyboard) {
    for (const Image* lamp :
         {&list().player_lamp, &list().random_lamp, &list().defined_end_lamp, &list().full_length_lamp})
        EXPECT_EQ(part(list_view(), lamp->name()).focusPolicy(), Qt::NoFocus) << lamp->name();
}

TEST_F(ListWindow, ButtonsReachTheirImages) {
    std::vector<std::string> pressed;
    for (Image* image : {&list().play_list, &list().zap, &list().stop_decks, &list().show_playing_row}) {
        image->enabled = true;
        image->on_click = [&pressed, image] { pressed.push_back(image->name()); };
        settle();
        part<StudioButton>(list_view(), image->name()).click();
    }
    EXPECT_EQ(pressed, (std::vector<std::string>{"Image1", "Image2", "Image3", "Image4"}));
}

TEST_F(ListWindow, PlayIsALampWhileTheListRuns) {
    auto& play = part<StudioButton>(list_view(), list().play_list.name());
    const auto is_lit = [&] { return is_near(ground_in(seen_in_window(play)), studio::air_fill, 4); };
    list().play_list.enabled = false; // as a running list leaves it
    settle();
    EXPECT_TRUE(is_lit());
    EXPECT_FALSE(play.isEnabled());
    EXPECT_EQ(play.accessibleDescription(), "la liste est en lecture");
    list().play_list.enabled = true;
    settle();
    EXPECT_FALSE(is_lit());
    EXPECT_EQ(play.accessibleDescription(), "");
}

TEST_F(ListWindow, ZapIsTheOneFilledAmberButton) {
    for (Image* image : {&list().zap, &list().stop_decks, &list().show_playing_row})
        image->enabled = true;
    settle();
    for (const StudioButton* button : parts_of<StudioButton>(list_view()))
        EXPECT_EQ(button->accent() == Accent::next, button->objectName() == "Image2");
    EXPECT_TRUE(is_near(ground_in(seen_in_window(part(list_view(), "Image2"))), studio::next, 4));
}

TEST_F(ListWindow, SwitchIsOnWhileItsWordsSayIt) {
    auto& toggle = part<Toggle>(list_view(), list().jingles_switch.name());
    const QImage off = seen_in_window(toggle);
    EXPECT_FALSE(toggle.isChecked());
    EXPECT_LT(count_of(off, studio::air_fill), 10);
    list().jingles_status.caption = "Jingle On ( 2 )";
    settle();
    EXPECT_TRUE(toggle.isChecked());
    EXPECT_GT(count_of(seen_in_window(toggle), studio::air_fill), 200);
    list().jingles_status.caption = "Jingle Off";
    settle();
    EXPECT_EQ(seen_in_window(toggle), off);
}

TEST_F(ListWindow, PressOfASwitchOrOfItsWordsIsTheStations) {
    int presses = 0;
    list().jingles_switch.on_click = [&] { ++presses; };
    auto& toggle = part<Toggle>(list_view(), list().jingles_switch.name());
    QTest::mouseClick(&toggle, Qt::LeftButton);
    EXPECT_EQ(presses, 1);
    QTest::mouseClick(&label(list().jingles_status), Qt::LeftButton);
    EXPECT_EQ(presses, 2);
    EXPECT_FALSE(toggle.isChecked()); // the station has said nothing
}

TEST_F(ListWindow, EntryIsAButtonWithItsLetterUnderlined) {
    auto& save = part<StudioButton>(list_view(), list().save_as.name());
    EXPECT_EQ(save.text(), "Enreg..");
    EXPECT_EQ(save.shortcut(), QKeySequence{Qt::ALT | Qt::Key_E});
    const QImage underlined = seen_in_window(save);
    list().save_as.caption = "Enreg..";
    settle();
    EXPECT_NE(seen_in_window(save), underlined);
    int saved = 0;
    list().save_as.on_click = [&] { ++saved; };
    save.click();
    EXPECT_EQ(saved, 1);
}

TEST_F(ListWindow, NoControlIsMissing) {
    for (const Control* control : list().controls())
        EXPECT_TRUE(control->kind() == ControlKind::menu_item || list_view().is_bound(*control)) << control->name();
}

} // namespace sonarelle
