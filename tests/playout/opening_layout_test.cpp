// Where desk and list come up, by the screens that stations have.
#include "playout/opening_layout.h"

#include <gtest/gtest.h>

#include "windows/antenne_fm.h"

namespace sonarelle {

namespace {

constexpr Twips title_bar{24 * 15};

constexpr Twips pixels(int count) {
    return Twips{count * 15};
}

constexpr ScreenArea screen_of(int width, int height) {
    return {.left{}, .top{}, .width = pixels(width), .height = pixels(height)};
}

Twips foot_of_list(const OpeningLayout& layout) {
    return layout.top + title_bar + layout.desk_height + title_bar + layout.list_height;
}

} // namespace

TEST(OpeningLayoutTest, StandsOneBelowTheOtherOnEachScreenThatHasTheRoom) {
    for (const auto& [width, height] : {std::pair{1024, 768}, {1280, 800}, {1366, 768}, {1600, 900}, {1920, 1080}}) {
        const OpeningLayout layout = opening_layout(screen_of(width, height), title_bar);
        EXPECT_EQ(layout.width, pixels(width));
        EXPECT_GE(layout.desk_height, height_without_menus) << width;
        EXPECT_GE(layout.list_height, least_list_height) << width;
        EXPECT_GE(layout.top, Twips{}) << width;
        EXPECT_LE(foot_of_list(layout), pixels(height)) << width;
    }
}

TEST(OpeningLayoutTest, IsLargeOnFullHighDefinition) {
    const OpeningLayout layout = opening_layout(screen_of(1920, 1080), title_bar);
    EXPECT_EQ(layout.desk_height, pixels(672));
    EXPECT_EQ(layout.list_height, pixels(360));
}

TEST(OpeningLayoutTest, IsInTheMiddleOfALargerScreen) {
    const OpeningLayout layout = opening_layout(screen_of(2560, 1440), title_bar);
    EXPECT_EQ(layout.width, pixels(1920));
    EXPECT_EQ(layout.left, pixels(320));
    EXPECT_EQ(layout.top, pixels(1440) - foot_of_list(layout));
}

TEST(OpeningLayoutTest, LeavesTheSmallestScreenToTheDesk) {
    const OpeningLayout layout = opening_layout(screen_of(1024, 600), title_bar);
    EXPECT_EQ(layout.desk_height, pixels(576));
    EXPECT_EQ(layout.top, Twips{});
}

TEST(OpeningLayoutTest, KeepsToTheRoomThatABarOfTheDesktopLeaves) {
    const ScreenArea screen{.left = pixels(60), .top = pixels(30), .width = pixels(1220), .height = pixels(850)};
    const OpeningLayout layout = opening_layout(screen, title_bar);
    EXPECT_EQ(layout.left, pixels(60));
    EXPECT_GE(layout.top, pixels(30));
    EXPECT_LE(foot_of_list(layout), pixels(880));
}

} // namespace sonarelle
