#include <gtest/gtest.h>
#include <poll.h>

#include <algorithm>
#include <thread>

#include "live_fixture.h"

namespace sonarelle {
namespace {

using namespace std::chrono_literals;

void expect_the_rehearsal(LiveFixture& live) {
    SoundFixture rehearsal;
    ThreeGraphs::make_files(rehearsal.folder);
    const ThreeGraphs rehearsed{rehearsal.scheduler, rehearsal.media, rehearsal.folder};
    rehearsal.run_for(ThreeGraphs::length);

    const ThreeGraphs aired{live.scheduler, live.media, rehearsal.folder};
    live.go_on_air();
    live.live_until([&] { return live.bus.rendered() >= ThreeGraphs::length; });
    live.output.reset();

    const auto heard = live.card->heard();
    for (std::size_t sample = 0; sample < rehearsal.heard.size(); ++sample)
        ASSERT_EQ(heard.at(sample), rehearsal.heard[sample]) << "at frame " << sample / 2;
}

TEST(LiveDriver, SoundsLikeTheRehearsalSampleForSample) {
    LiveFixture live;
    expect_the_rehearsal(live);
}

TEST(LiveDriver, SoundsLikeTheRehearsalOnACardThatTakesSeveralBlocksAtOnce) {
    LiveFixture live;
    live.card->block_frames = 2048;
    live.card->blocks_at_once = 2;
    expect_the_rehearsal(live);
}

TEST(LiveDriver, IsTheGreatestBurstAndOneBlockAhead) {
    LiveFixture live;
    live.card->block_frames = 2048;
    live.card->blocks_at_once = 3;
    EXPECT_EQ(live.driver.lead(), milliseconds(50));
    live.go_on_air();
    live.live_for(seconds(1));
    EXPECT_EQ(live.driver.lead(), Frames{4 * 2048});
}

TEST(LiveDriver, RunsEachTickOnItsDueFrameAheadOfTheBus) {
    LiveFixture live;
    Timer timer{"Timer1", 1, live.scheduler};
    std::vector<Frames> due;
    bool ahead = true;
    timer.set_interval(Integer{100});
    timer.on_tick = [&] {
        due.push_back(live.clock.now());
        ahead = ahead && live.clock.now() <= live.bus.rendered() + live.driver.lead();
    };
    timer.enable();
    live.go_on_air();
    live.live_until([&] { return due.size() == 5; });
    for (std::size_t tick = 0; tick < due.size(); ++tick)
        EXPECT_EQ(due[tick], milliseconds(100 * (static_cast<std::int64_t>(tick) + 1)));
    EXPECT_TRUE(ahead);
}

TEST(LiveDriver, RunsMissedTicksEachWithItsOwnDueFrame) {
    LiveFixture live;
    Timer timer{"Timer1", 1, live.scheduler};
    std::vector<Frames> due;
    timer.set_interval(Integer{50});
    timer.on_tick = [&] {
        due.push_back(live.clock.now());
        if (due.size() == 2)
            std::this_thread::sleep_for(700ms);
    };
    timer.enable();
    live.go_on_air();
    live.live_until([&] { return due.size() >= 14; });
    for (std::size_t tick = 0; tick < due.size(); ++tick)
        EXPECT_EQ(due[tick], milliseconds(50 * (static_cast<std::int64_t>(tick) + 1)));
}

TEST(LiveDriver, ALateRunMovesNowToTheFrameOnWhichItIsHeard) {
    LiveFixture live;
    const auto graph = live.graph(live.folder.counting_wav("a.wav", 3));
    Timer timer{"Timer1", 1, live.scheduler};
    Frames due;
    Frames heard_on;
    timer.set_interval(Integer{100});
    timer.on_tick = [&] {
        timer.disable();
        std::this_thread::sleep_for(600ms);
        due = live.clock.now();
        graph->Run();
        heard_on = live.clock.now();
    };
    timer.enable();
    live.go_on_air();
    live.live_until([&] { return heard_on > Frames{0} && live.bus.rendered() > heard_on + seconds(1); });
    EXPECT_GT(heard_on, due + milliseconds(300));
    live.output.reset();

    EXPECT_EQ(live.left(heard_on - Frames{1}), 0.0F);
    for (std::int64_t frame = 0; frame < 40000; frame += 131)
        ASSERT_EQ(live.left(heard_on + Frames{frame}), counted(frame)) << frame;
}

TEST(LiveDriver, ALateStopOrVolumeLeavesNowAlone) {
    LiveFixture live;
    const auto graph = live.graph(live.folder.counting_wav("a.wav", 3));
    Timer timer{"Timer1", 1, live.scheduler};
    bool done = false;
    timer.set_interval(Integer{100});
    timer.on_tick = [&] {
        timer.disable();
        std::this_thread::sleep_for(400ms);
        graph->put_Volume(Millibel{-300});
        graph->put_CurrentPosition(0.25);
        graph->Stop();
        EXPECT_EQ(live.clock.now(), milliseconds(100));
        EXPECT_DOUBLE_EQ(graph->get_CurrentPosition(), 0.25);
        done = true;
    };
    timer.enable();
    live.go_on_air();
    live.live_until([&] { return done; });
}

TEST(LiveDriver, StampsTheOperatorAheadOfTheBusAndLandsThere) {
    LiveFixture live;
    const auto graph = live.graph(live.folder.counting_wav("a.wav", 3));
    live.go_on_air();
    live.live_for(milliseconds(200));
    Frames stamp;
    live.driver.run_event([&] {
        stamp = live.clock.now();
        EXPECT_GE(stamp, live.bus.rendered());
        graph->Run();
        EXPECT_EQ(live.clock.now(), stamp) << "now stands still in the handler";
    });
    live.live_for(milliseconds(300));
    live.output.reset();
    EXPECT_EQ(live.left(stamp + Frames{100}), counted(100));
}

TEST(LiveDriver, TakesEventsFromOtherThreadsInOrder) {
    LiveFixture live;
    std::vector<int> order;
    std::thread other{[&] {
        for (int event = 0; event < 20; ++event)
            live.driver.post([&order, event] { order.push_back(event); });
        live.driver.post([&live] { live.driver.stop(); });
    }};
    live.driver.run();
    other.join();
    EXPECT_EQ(order.size(), 20U);
    EXPECT_TRUE(std::ranges::is_sorted(order));
}

/// Whether the loop that sleeps on the driver's descriptor wakes.
bool wakes(const LiveDriver& driver) {
    pollfd descriptor{.fd = driver.wake_descriptor(), .events = POLLIN, .revents = 0};
    return ::poll(&descriptor, 1, 0) == 1;
}

TEST(LiveDriver, PostedEventWakesTheLoopThatSleeps) {
    LiveFixture live;
    live.driver.post([] {});
    EXPECT_TRUE(wakes(live.driver));
    static_cast<void>(live.driver.poll());
    EXPECT_FALSE(wakes(live.driver));
}

TEST(LiveDriver, StopWakesTheLoopThatSleeps) {
    LiveFixture live;
    live.driver.stop();
    EXPECT_TRUE(wakes(live.driver));
}

TEST(LiveDriver, HasASecondForItsHousekeepingWhenNothingIsDue) {
    LiveFixture live;
    EXPECT_EQ(live.driver.poll(), 1s);
    Timer timer{"Timer1", 1, live.scheduler};
    timer.set_interval(Integer{200});
    timer.on_tick = [] {};
    timer.enable();
    EXPECT_GE(live.driver.poll(), 1ms);
    EXPECT_LE(live.driver.poll(), 200ms);
}

TEST(LiveDriver, StopEndsAWait) {
    LiveFixture live;
    live.driver.post([&] {
        live.driver.stop();
        live.clock.wait(seconds(3600));
    });
    live.driver.run();
    EXPECT_TRUE(live.driver.is_stopped());
    EXPECT_EQ(live.bus.rendered(), Frames{});
}

TEST(LiveDriver, LeavesTheClockAloneWhenItGoes) {
    LiveFixture live;
    {
        LiveDriver other{live.scheduler, live.clock, live.bus, live.media};
        EXPECT_TRUE(live.clock.run_until);
        EXPECT_TRUE(live.clock.run_pending);
    }
    EXPECT_FALSE(live.clock.run_until);
    EXPECT_FALSE(live.clock.run_pending);
}

TEST(LiveDriver, RunsWhatAnEventPostsBehindIt) {
    LiveFixture live;
    std::string order;
    live.driver.post([&] {
        live.driver.post([&] { order += 'b'; });
        order += 'a';
    });
    live.driver.post([&] { order += 'c'; });
    static_cast<void>(live.driver.poll());
    EXPECT_EQ(order, "acb");
}

TEST(LiveDriver, OtherTimersRunOnWhileOneWaits) {
    LiveFixture live;
    Timer waiting{"Timer2", 2, live.scheduler};
    Timer other{"Timer1", 1, live.scheduler};
    int ticks_meanwhile = 0;
    Frames before;
    Frames after;
    waiting.set_interval(Integer{60});
    waiting.on_tick = [&] {
        waiting.disable();
        before = live.clock.now();
        live.clock.wait(milliseconds(300));
        after = live.clock.now();
    };
    other.set_interval(Integer{50});
    other.on_tick = [&] { ticks_meanwhile += before > Frames{0} && after == Frames{0} ? 1 : 0; };
    waiting.enable();
    other.enable();
    live.go_on_air();
    live.live_until([&] { return after > Frames{0}; });
    EXPECT_GE(after - before, milliseconds(300));
    EXPECT_GE(ticks_meanwhile, 5);
}

TEST(LiveDriver, LongWorkLetsOtherTimersAndTheOperatorInWhereItYields) {
    LiveFixture live;
    Timer working{"Timer2", 2, live.scheduler};
    Timer other{"Timer1", 1, live.scheduler};
    bool works = false;
    bool stopped = false;
    int ticks_meanwhile = 0;
    working.set_interval(Integer{60});
    working.on_tick = [&] {
        working.disable();
        works = true;
        while (!stopped)
            live.clock.yield();
        works = false;
    };
    other.set_interval(Integer{50});
    other.on_tick = [&] {
        ticks_meanwhile += works ? 1 : 0;
        if (ticks_meanwhile == 3)
            live.driver.post([&] { stopped = true; });
    };
    working.enable();
    other.enable();
    live.go_on_air();
    live.live_until([&] { return stopped && !works; });
    EXPECT_GE(ticks_meanwhile, 3);
}

} // namespace
} // namespace sonarelle
