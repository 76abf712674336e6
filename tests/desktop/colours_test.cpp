// Which ink stands on which ground, where a station tells both.
#include "desktop/colours.h"

#include <gtest/gtest.h>

namespace sonarelle {

namespace {

constexpr Colour black = 0x000000;
constexpr Colour white = 0xFFFFFF;
constexpr Colour grey = 0x8F8F8F;
constexpr Colour green = 0x00C000; // as blue, green, red
constexpr Colour blue = 0xFF0000;

} // namespace

TEST(Colours, BytesOfAToldColourAreRedGreenBlueFromTheLowest) {
    EXPECT_EQ(to_qt(0x302010, studio::text), QColor(0x10, 0x20, 0x30));
}

TEST(Colours, ColourOfTheDesktopIsTheStudios) {
    EXPECT_EQ(to_qt(desktop_text, studio::text), studio::text);
}

TEST(Colours, ChosenColourComesBackAsItWasTold) {
    EXPECT_EQ(from_qt(to_qt(0x302010, studio::text)), 0x302010);
}

TEST(Colours, ContrastIsThatOfTheGuidelines) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrast(QColor{0x8f, 0x8f, 0x8f}, Qt::white), 3.23, 0.01);
    EXPECT_NEAR(contrast(QColor{0x77, 0x77, 0x77}, Qt::white), 4.48, 0.01);
}

TEST(Colours, BlackOrWhiteReadsOnEveryGround) {
    for (int red = 0; red < 256; red += 15)
        for (int green_share = 0; green_share < 256; green_share += 15)
            for (int blue_share = 0; blue_share < 256; blue_share += 15) {
                const QColor ground{red, green_share, blue_share};
                EXPECT_GE(contrast(readable_on(ground), ground), readable) << ground.name().toStdString();
            }
}

TEST(Colours, InkThatReadsIsKept) {
    const QColor ink{0xff, 0xff, 0x00};
    EXPECT_EQ(legible(ink, studio::card), ink);
}

TEST(Colours, InkThatDoesntReadGivesWay) {
    EXPECT_EQ(legible(QColor{0, 0, 0xff}, studio::card), QColor(Qt::white));
    EXPECT_EQ(legible(QColor{0xff, 0xff, 0x80}, QColor{0xf0, 0xf0, 0xf0}), QColor(Qt::black));
}

TEST(Colours, ToldGroundThatCarriesItsInkIsTaken) {
    EXPECT_EQ(ground_for(black, white, studio::card), QColor(Qt::white));
}

TEST(Colours, ToldGroundThatDoesntIsABreathOnTheStudios) {
    const QColor mix = ground_for(blue, green, studio::card);
    EXPECT_GE(contrast(Qt::white, mix), 10);
    EXPECT_GT(mix.green(), mix.red() + 15);
    EXPECT_GT(mix.green(), mix.blue() + 10);
}

TEST(Colours, GreyOfAFirstStartLeavesTheStudioDark) {
    EXPECT_GE(contrast(Qt::white, ground_for(white, grey, studio::card)), 10);
}

TEST(Colours, GroundOfTheDesktopIsTheStudios) {
    EXPECT_EQ(ground_for(blue, desktop_face, studio::card), studio::card);
}

TEST(Colours, ShareOfOneInAnother) {
    EXPECT_EQ(mixed(Qt::black, Qt::white, 0), QColor(Qt::black));
    EXPECT_EQ(mixed(Qt::black, Qt::white, 1), QColor(Qt::white));
    EXPECT_EQ(mixed(QColor{0, 100, 200}, QColor{100, 0, 200}, 0.25), QColor(25, 75, 200));
}

TEST(Colours, WhatCantBeReachedReadsAllTheSame) {
    const QPalette palette = studio_palette();
    EXPECT_GE(contrast(palette.color(QPalette::Disabled, QPalette::WindowText), studio::card), readable);
}

TEST(Colours, EveryTextOfTheStudioReadsOnItsGround) {
    const QPalette palette = studio_palette();
    const std::array<std::pair<QPalette::ColorRole, QPalette::ColorRole>, 10> pairs{
        {{QPalette::WindowText, QPalette::Window},
         {QPalette::Text, QPalette::Base},
         {QPalette::Text, QPalette::AlternateBase},
         {QPalette::ButtonText, QPalette::Button},
         {QPalette::ToolTipText, QPalette::ToolTipBase},
         {QPalette::HighlightedText, QPalette::Highlight},
         {QPalette::PlaceholderText, QPalette::Base},
         {QPalette::Link, QPalette::Base},
         {QPalette::Link, QPalette::Window},
         {QPalette::BrightText, QPalette::Window}}};
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        for (const auto& [ink, ground] : pairs)
            EXPECT_GE(contrast(palette.color(group, ink), palette.color(group, ground)), readable)
                << ink << " " << ground;
}

TEST(Colours, GroundsOfTheStudioAreDark) {
    const QPalette palette = studio_palette();
    for (const auto role :
         {QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::Button, QPalette::Highlight})
        EXPECT_LT(palette.color(role).lightness(), 90) << role;
    EXPECT_GT(palette.color(QPalette::ToolTipBase).lightness(), 200); // a tip stands off all of them
}

} // namespace sonarelle
