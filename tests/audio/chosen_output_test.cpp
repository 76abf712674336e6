#include <gtest/gtest.h>

#include "live_fixture.h"

namespace sonarelle {
namespace {

class ChosenOutput : public testing::Test {
protected:
    void wait_until_it_plays_on(const std::string& name) {
        live.live_until([&] { return live.output->playing_on() == name && live.last_state == OutputState::playing; });
    }
    [[nodiscard]] bool gets_the_programme(const FakeCard& card) {
        const std::size_t before = card.heard().size();
        live.live_for(milliseconds(300));
        return card.heard().size() > before;
    }

    LiveFixture live;
};

TEST_F(ChosenOutput, AnotherDeviceIsTakenOnTheAir) {
    live.go_on_air();
    wait_until_it_plays_on("");
    live.output->choose("Studio");
    wait_until_it_plays_on("Studio");
    EXPECT_TRUE(gets_the_programme(*live.studio));
    EXPECT_EQ(live.card->open, 0) << "the old one is closed";
}

TEST_F(ChosenOutput, TheProgrammeGoesOnThroughTheChange) {
    const auto graph = live.graph(live.folder.counting_wav("a.wav", 20));
    live.go_on_air();
    wait_until_it_plays_on("");
    Frames begin;
    live.driver.run_event([&] {
        graph->Run();
        begin = live.clock.now();
    });
    live.live_for(milliseconds(300));
    live.output->choose("Studio");
    wait_until_it_plays_on("Studio");
    live.live_for(milliseconds(300));
    live.output.reset();

    const auto heard = live.studio->heard();
    const auto last = static_cast<std::int64_t>(heard.size() / 2) - 1;
    EXPECT_EQ(heard[heard.size() - 2], counted(last - begin.count()));
}

TEST_F(ChosenOutput, TheChangeToADeviceOfGreaterBurstsIsNoGap) {
    live.studio->block_frames = 2048;
    live.studio->blocks_at_once = 3;
    live.go_on_air();
    wait_until_it_plays_on("");
    live.live_for(seconds(5)); // long enough to know the old one's pace
    live.output->choose("Studio");
    wait_until_it_plays_on("Studio");
    live.live_for(seconds(7));
    EXPECT_EQ(live.lost_in_gaps, 0);
}

TEST_F(ChosenOutput, TheDefaultDeviceIsTakenBack) {
    live.go_on_air("Studio");
    wait_until_it_plays_on("Studio");
    live.output->choose("");
    wait_until_it_plays_on("");
    EXPECT_TRUE(gets_the_programme(*live.card));
}

TEST_F(ChosenOutput, TheSameChoiceAgainOpensNothing) {
    live.go_on_air("Studio");
    wait_until_it_plays_on("Studio");
    live.output->choose("Studio");
    live.live_for(milliseconds(500));
    EXPECT_EQ(live.studio->opened, 1);
}

TEST_F(ChosenOutput, TheDefaultDevicePlaysWhileTheChosenOneIsMissingAtFirst) {
    live.studio->absent = true;
    live.go_on_air("Studio");
    wait_until_it_plays_on("");
    EXPECT_EQ(live.output->chosen(), "Studio");
    live.studio->absent = false;
    wait_until_it_plays_on("Studio");
    EXPECT_TRUE(gets_the_programme(*live.studio));
}

TEST_F(ChosenOutput, AMissingDeviceLeavesTheDefaultOnePlaying) {
    live.go_on_air();
    wait_until_it_plays_on("");
    live.output->choose("Régie");
    live.live_for(milliseconds(500));
    EXPECT_EQ(live.output->playing_on(), "");
    EXPECT_EQ(live.card->opened, 1);
}

TEST_F(ChosenOutput, TheDefaultDeviceTakesOverWhenTheChosenOneDiesAndGivesBack) {
    live.go_on_air("Studio");
    wait_until_it_plays_on("Studio");
    live.studio->absent = true;
    live.studio->dead = true;
    wait_until_it_plays_on("");
    EXPECT_TRUE(gets_the_programme(*live.card));
    live.studio->dead = false;
    live.studio->absent = false;
    wait_until_it_plays_on("Studio");
    EXPECT_TRUE(gets_the_programme(*live.studio));
}

TEST_F(ChosenOutput, TheDefaultDeviceIsOpenedAtOnceWhenTheChosenOneDies) {
    live.go_on_air("Studio");
    wait_until_it_plays_on("Studio");
    const int asked_for = live.studio->asked_for;
    live.studio->absent = true;
    live.studio->dead = true;
    live.live_until([&] { return live.output->playing_on() == ""; });
    EXPECT_EQ(live.studio->asked_for, asked_for) << "the one that has just gone isn't tried before";
}

TEST_F(ChosenOutput, AChosenDeviceThatHangsTakesNothingAway) {
    live.studio->hanging = true;
    live.go_on_air();
    wait_until_it_plays_on("");
    live.output->choose("Studio");
    live.live_until([&] { return live.studio->opened == 2; });
    EXPECT_EQ(live.last_state, OutputState::playing);
    EXPECT_TRUE(gets_the_programme(*live.card));
    live.studio->hanging = false;
    wait_until_it_plays_on("Studio");
}

TEST_F(ChosenOutput, WhatPlaysPlaysOnWhileNothingElseCanBeOpened) {
    live.card->absent = true;
    live.go_on_air("Studio");
    wait_until_it_plays_on("Studio");
    live.output->choose("");
    EXPECT_TRUE(gets_the_programme(*live.studio));
    live.card->absent = false;
    wait_until_it_plays_on("");
}

TEST_F(ChosenOutput, AChoiceWhileNoDeviceIsThereCounts) {
    live.card->absent = true;
    live.go_on_air();
    live.live_until([&] { return live.last_state == OutputState::paced; });
    EXPECT_FALSE(live.output->playing_on().has_value());
    live.output->choose("Studio");
    wait_until_it_plays_on("Studio");
}

TEST_F(ChosenOutput, ADeviceThatIsGoneIsSaidToPlayNoMore) {
    live.go_on_air();
    wait_until_it_plays_on("");
    live.card->absent = true;
    live.card->dead = true;
    live.live_until([&] { return !live.output->playing_on().has_value(); });
    EXPECT_EQ(live.output->chosen(), "");
}

TEST_F(ChosenOutput, DevicesAreToldByNameAsTheyComeAndGo) {
    live.go_on_air();
    live.live_until([&] { return live.output->device_names() == std::vector<std::string>{"Studio"}; });
    live.studio->absent = true;
    live.live_until([&] { return live.output->device_names().empty(); });
}

} // namespace
} // namespace sonarelle
