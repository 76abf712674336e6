#include "platform/timer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "platform/scheduler.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A timer that writes down the instants of its ticks, in milliseconds.
struct Ticking {
    explicit Ticking(Scheduler& scheduler)
        : timer{"Timer1", 1, scheduler} {
        timer.on_tick = [this, &scheduler] { ticks.push_back(scheduler.now().count() / frames_per_millisecond); };
    }

    Timer timer;
    std::vector<std::int64_t> ticks;
};

TEST(Timer, APeriodIsExactInFrames) {
    Scheduler scheduler;
    std::vector<Frames> ticks;
    Timer timer{"Timer3", 3, scheduler};
    timer.on_tick = [&] { ticks.push_back(scheduler.now()); };
    timer.set_interval(7);
    timer.enable();
    scheduler.run_until(Frames{7 * 48 * 3});
    EXPECT_THAT(ticks, ElementsAre(Frames{336}, Frames{672}, Frames{1008}));
}

TEST(Timer, IsDueOnItsFrameAndNotBefore) {
    Scheduler scheduler;
    Ticking one{scheduler};
    one.timer.set_interval(1000);
    one.timer.enable();
    scheduler.run_until(seconds(1) - Frames{1});
    EXPECT_THAT(one.ticks, IsEmpty());
    scheduler.run_until(seconds(1));
    EXPECT_THAT(one.ticks, ElementsAre(1000));
}

TEST(Timer, SwitchingItOnBeginsAPeriod) {
    Scheduler scheduler;
    Ticking one{scheduler};
    one.timer.set_interval(1000);
    scheduler.run_until(milliseconds(300));
    one.timer.enable();
    scheduler.run_until(milliseconds(2400));
    EXPECT_THAT(one.ticks, ElementsAre(1300, 2300));
}

TEST(Timer, SwitchingItOnAgainChangesNothing) {
    Scheduler scheduler;
    Ticking one{scheduler};
    one.timer.set_interval(1000);
    one.timer.enable();
    scheduler.run_until(milliseconds(300));
    one.timer.enable();
    scheduler.run_until(milliseconds(1000));
    EXPECT_THAT(one.ticks, ElementsAre(1000));
}

TEST(Timer, ANewIntervalBeginsAPeriod) {
    Scheduler scheduler;
    Ticking one{scheduler};
    one.timer.set_interval(1000);
    one.timer.enable();
    scheduler.run_until(milliseconds(900));
    one.timer.set_interval(500);
    scheduler.run_until(milliseconds(2000));
    EXPECT_THAT(one.ticks, ElementsAre(1400, 1900));
}

TEST(Timer, TheSameIntervalAgainChangesNothing) {
    Scheduler scheduler;
    Ticking one{scheduler};
    one.timer.set_interval(1000);
    one.timer.enable();
    scheduler.run_until(milliseconds(900));
    one.timer.set_interval(1000);
    scheduler.run_until(milliseconds(1000));
    EXPECT_THAT(one.ticks, ElementsAre(1000));
}

TEST(Timer, IntervalNothingNeverFires) {
    Scheduler scheduler;
    Ticking one{scheduler};
    one.timer.enable();
    scheduler.run_until(seconds(100));
    EXPECT_THAT(one.ticks, IsEmpty());
    EXPECT_EQ(scheduler.next_due(), std::nullopt);
}

TEST(Timer, FromNothingToAnIntervalBeginsAPeriod) {
    Scheduler scheduler;
    Ticking one{scheduler};
    one.timer.set_interval(1000);
    one.timer.enable();
    scheduler.run_until(milliseconds(700));
    one.timer.set_interval(0);
    one.timer.set_interval(1000);
    scheduler.run_until(milliseconds(1700));
    EXPECT_THAT(one.ticks, ElementsAre(1700));
}

TEST(Timer, SwitchedOffItDoesNotFire) {
    Scheduler scheduler;
    Ticking one{scheduler};
    one.timer.set_interval(1000);
    one.timer.enable();
    scheduler.run_until(milliseconds(1500));
    one.timer.disable();
    scheduler.run_until(milliseconds(5000));
    EXPECT_THAT(one.ticks, ElementsAre(1000));
}

TEST(Timer, RestartBeginsThePeriodAnew) {
    Scheduler scheduler;
    Ticking one{scheduler};
    one.timer.set_interval(1000);
    one.timer.enable();
    scheduler.run_until(milliseconds(600));
    one.timer.restart();
    scheduler.run_until(milliseconds(1600));
    EXPECT_THAT(one.ticks, ElementsAre(1600));
}

TEST(Timer, RestartLeavesATimerOffThatIsOff) {
    Scheduler scheduler;
    Ticking one{scheduler};
    one.timer.set_interval(1000);
    one.timer.restart();
    scheduler.run_until(seconds(3));
    EXPECT_THAT(one.ticks, IsEmpty());
}

TEST(Timer, ATickMaySwitchItsOwnTimerOff) {
    Scheduler scheduler;
    Timer timer{"Timer2", 2, scheduler};
    int ticks = 0;
    timer.on_tick = [&] {
        ++ticks;
        timer.disable();
    };
    timer.set_interval(100);
    timer.enable();
    scheduler.run_until(seconds(1));
    EXPECT_EQ(ticks, 1);
}

TEST(Timer, AnIntervalSetInATickCountsFromIt) {
    Scheduler scheduler;
    Ticking one{scheduler};
    const auto write = one.timer.on_tick;
    one.timer.on_tick = [&] {
        write();
        one.timer.set_interval(0);
        one.timer.set_interval(300);
    };
    one.timer.set_interval(1000);
    one.timer.enable();
    scheduler.run_until(milliseconds(1700));
    EXPECT_THAT(one.ticks, ElementsAre(1000, 1300, 1600));
}

TEST(Timer, AfterItsEndTheSchedulerGoesOn) {
    Scheduler scheduler;
    {
        Timer gone{"Timer9", 9, scheduler};
        gone.set_interval(100);
        gone.enable();
    }
    EXPECT_EQ(scheduler.next_due(), std::nullopt);
}

} // namespace

} // namespace sonarelle
