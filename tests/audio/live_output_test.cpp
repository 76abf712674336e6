#include <gtest/gtest.h>

#include "live_fixture.h"

namespace sonarelle {
namespace {

TEST(LiveOutput, WithoutADeviceTheClockPaces) {
    LiveFixture live;
    live.output = std::make_unique<LiveOutput>(live.bus, nullptr, "", nullptr);
    live.live_for(milliseconds(200));
    EXPECT_EQ(live.output->state(), OutputState::paced);
}

TEST(LiveOutput, TheFirstFramesGoToADeviceThatIsSlowToOpen) {
    LiveFixture live;
    live.go_on_air();
    live.live_until([&] { return live.output->state() != OutputState::opening; });
    EXPECT_EQ(live.output->state(), OutputState::playing);
}

TEST(LiveOutput, TheCountGoesOnWhenTheDeviceDiesAndTheDeviceIsTakenBack) {
    LiveFixture live;
    live.go_on_air();
    live.live_until([&] { return live.output->state() == OutputState::playing; });
    live.card->absent = true;
    live.card->dead = true;
    live.live_until([&] { return live.last_state == OutputState::paced; });
    live.live_for(milliseconds(300));
    live.card->absent = false;
    live.card->dead = false;
    live.live_until([&] { return live.last_state == OutputState::playing; });
    live.live_for(milliseconds(300));
    EXPECT_EQ(live.card->opened, 2);
}

TEST(LiveOutput, TheCountGoesOnWhileTheDeviceHangs) {
    LiveFixture live;
    live.go_on_air();
    live.live_until([&] { return live.output->state() == OutputState::playing; });
    live.card->hanging = true;
    live.live_until([&] { return live.last_state == OutputState::paced; });
    live.live_for(milliseconds(300));
    live.card->hanging = false;
    live.live_until([&] { return live.last_state == OutputState::playing; });
    EXPECT_EQ(live.card->opened, 1);
}

TEST(LiveOutput, ADeviceThatHangsForLongIsOpenedAnew) {
    LiveFixture live;
    live.go_on_air();
    live.live_until([&] { return live.output->state() == OutputState::playing; });
    live.card->hanging = true;
    live.live_until([&] { return live.card->opened == 2; });
    live.card->hanging = false;
    live.live_until([&] { return live.last_state == OutputState::playing; });
}

TEST(LiveOutput, ADeviceThatTakesAFifthOfASecondAtOnceHasNotStopped) {
    LiveFixture live;
    live.card->block_frames = 2048;
    live.card->blocks_at_once = 5;
    live.go_on_air();
    live.live_for(seconds(4));
    EXPECT_EQ(live.losses, 0);
}

TEST(LiveOutput, ADeviceThatIsMissingAtFirstIsTakenWhenItComes) {
    LiveFixture live;
    live.card->absent = true;
    live.go_on_air();
    live.live_until([&] { return live.output->state() == OutputState::paced; });
    live.card->absent = false;
    live.live_until([&] { return live.output->state() == OutputState::playing; });
    EXPECT_EQ(live.card->opened, 1);
}

TEST(LiveOutput, ARunningGraphIsWhereTheClockSaysAfterALoss) {
    LiveFixture live;
    const auto graph = live.graph(live.folder.counting_wav("a.wav", 20));
    live.go_on_air();
    live.live_for(milliseconds(100));
    Frames begin;
    live.driver.run_event([&] {
        graph->Run();
        begin = live.clock.now();
    });
    live.card->hanging = true;
    live.live_until([&] { return live.last_state == OutputState::paced; });
    live.card->hanging = false;
    live.live_until([&] { return live.last_state == OutputState::playing; });
    live.live_for(milliseconds(200));
    live.output.reset();

    const auto heard = live.card->heard();
    const auto last = static_cast<std::int64_t>(heard.size() / 2) - 1;
    EXPECT_EQ(heard[heard.size() - 2], counted(last - begin.count()));
}

TEST(LiveOutput, TellsTheGapsOfADeviceOnceAMinute) {
    LiveFixture live;
    live.go_on_air();
    live.live_for(seconds(3));
    live.card->falls_behind = 60;
    live.live_until([&] { return live.lost_in_gaps > 0; });
    EXPECT_GE(live.lost_in_gaps, milliseconds(50).count());
    EXPECT_EQ(live.output->state(), OutputState::playing);

    live.card->falls_behind = 60;
    live.live_for(seconds(8));
    EXPECT_EQ(live.times_gaps_were_told, 1);
}

TEST(LiveOutput, TheLossOfADeviceDoesNotMoveTheTicks) {
    LiveFixture live;
    Timer timer{"Timer1", 1, live.scheduler};
    std::vector<Frames> due;
    timer.set_interval(Integer{100});
    timer.on_tick = [&] { due.push_back(live.clock.now()); };
    timer.enable();
    live.go_on_air();
    live.live_until([&] { return due.size() == 2; });
    live.card->hanging = true;
    live.live_until([&] { return due.size() == 12; });
    for (std::size_t tick = 0; tick < due.size(); ++tick)
        EXPECT_EQ(due[tick], milliseconds(100 * (static_cast<std::int64_t>(tick) + 1)));
}

} // namespace
} // namespace sonarelle
