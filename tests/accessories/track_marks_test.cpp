// The marks of a row's start and end on the picture of its sound, and what of it isn't saved yet.
#include "accessories/properties_fixture.h"

namespace sonarelle {

using TrackMarks = PropertiesFixture;

TEST_F(TrackMarks, MarksStandWhereTheFieldsSay) {
    open();
    EXPECT_EQ(window.path.get(), music);
    EXPECT_EQ(window.start_mark.get(), 0.1);
    EXPECT_EQ(window.end_mark.get(), 180.0);
    window.start.set_text("12.5");
    window.end.set_text("100,25");
    EXPECT_EQ(window.start_mark.get(), 12.5);
    EXPECT_EQ(window.end_mark.get(), 100.25);
}

TEST_F(TrackMarks, FieldWithoutANumberHasNoMark) {
    open();
    window.start.set_text("douze");
    window.end.set_text("");
    EXPECT_EQ(window.start_mark.get(), std::nullopt);
    EXPECT_EQ(window.end_mark.get(), std::nullopt);
}

TEST_F(TrackMarks, MovedMarksAreWrittenAsThoseSetByEar) {
    open();
    window.on_start_moved(12.345);
    window.on_end_moved(150);
    EXPECT_EQ(window.start.text(), "12.35");
    EXPECT_EQ(window.end.text(), "150.00");
}

TEST_F(TrackMarks, StartNeverPassesTheEnd) {
    open();
    window.on_start_moved(190);
    EXPECT_EQ(window.start.text(), "180.00");
    window.on_end_moved(20);
    EXPECT_EQ(window.end.text(), "180.00");
    window.on_start_moved(-3);
    EXPECT_EQ(window.start.text(), "0.00");
}

TEST_F(TrackMarks, StartThatIsMovedByHandFollowsThePlayingNoMore) {
    open_and_play();
    run_for(3);
    window.on_start_moved(50);
    run_for(3);
    EXPECT_EQ(window.start.text(), "50.00");
    EXPECT_EQ(window.bar.value, 6);
}

TEST_F(TrackMarks, BarGoesWithTheClick) {
    open_and_play();
    window.bar.click_at(Propriete::bar_units / 2);
    EXPECT_EQ(window.bar.value, 100);
}

TEST_F(TrackMarks, BarSaysThatThereIsNothingToSeekIn) {
    open();
    EXPECT_EQ(window.bar.refusal(), "Lancer d'abord la lecture");
    window.play.click();
    EXPECT_EQ(window.bar.refusal(), "");
}

TEST_F(TrackMarks, WhatIsNotSavedYetIsTold) {
    open();
    EXPECT_FALSE(window.modified.visible);
    window.on_start_moved(12);
    EXPECT_TRUE(window.modified.visible);
    window.start.set_text("0.10");
    EXPECT_FALSE(window.modified.visible) << "another text of the same number";
    window.genre.set_text("Jazz");
    EXPECT_TRUE(window.modified.visible);
    window.save.click();
    EXPECT_FALSE(window.modified.visible);
}

TEST_F(TrackMarks, FieldThatCannotBeSavedIsTold) {
    open();
    window.volume.set_text("fort");
    EXPECT_TRUE(window.modified.visible);
}

TEST_F(TrackMarks, AnotherRowIsAsItWasSaved) {
    open();
    window.genre.set_text("Jazz");
    open(1);
    EXPECT_FALSE(window.modified.visible);
}

} // namespace sonarelle
