#include "platform/scheduler.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "platform/timer.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Timers that write "number@milliseconds" at each tick.
class Diary : public testing::Test {
protected:
    Timer& add(int number, int interval) {
        auto& timer =
            *timers_.emplace_back(std::make_unique<Timer>("Timer" + std::to_string(number), number, scheduler));
        timer.on_tick = [this, number] { write(std::to_string(number)); };
        timer.set_interval(interval);
        timer.enable();
        return timer;
    }
    void write(const std::string& what) {
        lines.push_back(what + "@" + std::to_string(scheduler.now().count() / frames_per_millisecond));
    }

    Scheduler scheduler;
    std::vector<std::string> lines;

private:
    std::vector<std::unique_ptr<Timer>> timers_;
};

using SchedulerOrder = Diary;
using SchedulerEvent = Diary;
using SchedulerWait = Diary;
using SchedulerLateness = Diary;

TEST_F(SchedulerOrder, TheHighestNumberOfAnInstantRunsFirst) {
    add(1, 1000);
    add(9, 1000);
    add(4, 1000);
    scheduler.run_until(seconds(1));
    EXPECT_THAT(lines, ElementsAre("9@1000", "4@1000", "1@1000"));
}

TEST_F(SchedulerOrder, AnEarlierInstantRunsFirstWhateverItsNumber) {
    add(9, 1000);
    add(1, 400);
    scheduler.run_until(seconds(1));
    EXPECT_THAT(lines, ElementsAre("1@400", "1@800", "9@1000"));
}

TEST_F(SchedulerOrder, MissedTicksRunOneAfterTheOtherOnTheirOwnFrames) {
    add(1, 1000);
    add(3, 1500);
    scheduler.run_until(seconds(4));
    EXPECT_THAT(lines, ElementsAre("1@1000", "3@1500", "1@2000", "3@3000", "1@3000", "1@4000"));
}

TEST_F(SchedulerOrder, ATickThatIsSwitchedOffByOneOfItsInstantDoesNotRun) {
    Timer& low = add(1, 1000);
    add(2, 1000).on_tick = [&] { low.disable(); };
    scheduler.run_until(seconds(1));
    EXPECT_THAT(lines, IsEmpty());
}

TEST_F(SchedulerOrder, NowStandsAtTheHorizonBetweenTicks) {
    add(1, 1000);
    scheduler.run_until(milliseconds(1700));
    EXPECT_EQ(scheduler.now(), milliseconds(1700));
}

TEST_F(SchedulerOrder, NowNeverGoesBack) {
    scheduler.run_until(seconds(5));
    scheduler.run_until(seconds(2));
    scheduler.advance_to(seconds(3));
    EXPECT_EQ(scheduler.now(), seconds(5));
}

TEST_F(SchedulerOrder, TheNextDueFrameIsTheEarliest) {
    add(1, 1000);
    add(2, 300);
    EXPECT_EQ(scheduler.next_due(), milliseconds(300));
}

TEST_F(SchedulerEvent, ComesAfterTheTicksOfItsInstant) {
    add(1, 1000);
    scheduler.run_event(seconds(1), [&] { write("event"); });
    EXPECT_THAT(lines, ElementsAre("1@1000", "event@1000"));
}

TEST_F(SchedulerEvent, OfThePastHappensNow) {
    add(1, 1000);
    scheduler.run_until(seconds(1));
    scheduler.run_event(milliseconds(200), [&] { write("event"); });
    EXPECT_THAT(lines, ElementsAre("1@1000", "event@1000"));
}

TEST_F(SchedulerEvent, ComesBehindATickThatThrowsAndThoseAfterIt) {
    add(1, 500);
    add(2, 500).on_tick = [] { throw std::runtime_error{"tick"}; };
    EXPECT_THROW(scheduler.run_event(seconds(1), [&] { write("event"); }), std::runtime_error);
    EXPECT_THAT(lines, ElementsAre("1@500", "1@1000", "event@1000"));
}

TEST_F(SchedulerEvent, GoesByTheFirstOfTheExceptionsOfItsTicks) {
    int ticks = 0;
    add(1, 500).on_tick = [&] { throw std::runtime_error{std::to_string(++ticks)}; };
    try {
        scheduler.run_event(seconds(1), [] {});
    } catch (const std::runtime_error& fault) {
        lines.emplace_back(fault.what());
    }
    EXPECT_THAT(lines, ElementsAre("1"));
}

TEST_F(SchedulerEvent, IsNoTick) {
    bool in_tick = true;
    scheduler.run_event(seconds(1), [&] { in_tick = scheduler.in_tick(); });
    EXPECT_FALSE(in_tick);
}

TEST_F(SchedulerEvent, ATickIsOne) {
    bool in_tick = false;
    add(1, 1000).on_tick = [&] { in_tick = scheduler.in_tick(); };
    scheduler.run_until(seconds(1));
    EXPECT_TRUE(in_tick);
    EXPECT_FALSE(scheduler.in_tick());
}

TEST_F(SchedulerWait, OtherTimersRunOnWithTheirOwnFrames) {
    bool first = true;
    add(1, 1000).on_tick = [&] {
        if (std::exchange(first, false))
            scheduler.run_until(scheduler.now() + milliseconds(1800));
    };
    add(2, 500);
    scheduler.run_until(seconds(1));
    EXPECT_THAT(lines, ElementsAre("2@500", "2@1000", "2@1500", "2@2000", "2@2500"));
}

TEST_F(SchedulerWait, TheWaitingTimerStandsStillAndItsMissedTicksAreLeftOut) {
    bool first = true;
    add(1, 1000).on_tick = [&] {
        write("in");
        if (std::exchange(first, false))
            scheduler.run_until(scheduler.now() + milliseconds(2700));
    };
    scheduler.run_until(seconds(6));
    EXPECT_THAT(lines, ElementsAre("in@1000", "in@4000", "in@5000", "in@6000"));
}

TEST_F(SchedulerWait, OnReturnNowIsThePresent) {
    add(1, 1000).on_tick = [&] {
        scheduler.run_until(scheduler.now() + milliseconds(2700));
        write("back");
    };
    scheduler.run_until(seconds(1));
    EXPECT_THAT(lines, ElementsAre("back@3700"));
}

TEST_F(SchedulerWait, TwoTimersMayWaitInOneAnother) {
    add(1, 1000).on_tick = [&] {
        write("1 in");
        scheduler.run_until(scheduler.now() + seconds(3));
        write("1 out");
    };
    bool first = true;
    add(2, 1500).on_tick = [&] {
        if (!std::exchange(first, false))
            return;
        write("2 in");
        scheduler.run_until(scheduler.now() + seconds(1));
        write("2 out");
    };
    scheduler.run_until(seconds(1));
    EXPECT_THAT(lines, ElementsAre("1 in@1000", "2 in@1500", "2 out@2500", "1 out@4000"));
}

TEST_F(SchedulerWait, AnOperatorsEventComesMeanwhile) {
    add(1, 1000).on_tick = [&] {
        scheduler.run_event(scheduler.now() + milliseconds(300), [&] { write("event"); });
        write("back");
    };
    scheduler.run_until(seconds(1));
    EXPECT_THAT(lines, ElementsAre("event@1300", "back@1300"));
}

TEST_F(SchedulerWait, ATickThatIsDueOnTheFrameOfTheReturnIsNotLeftOut) {
    bool first = true;
    add(1, 1000).on_tick = [&] {
        write("in");
        if (std::exchange(first, false))
            scheduler.run_until(scheduler.now() + seconds(1));
    };
    scheduler.run_until(seconds(2));
    EXPECT_THAT(lines, ElementsAre("in@1000", "in@2000"));
}

TEST_F(SchedulerWait, ATimerThatWasSwitchedOffMeanwhileStaysOff) {
    Timer& one = add(1, 1000);
    one.on_tick = [&] {
        write("in");
        scheduler.run_until(scheduler.now() + seconds(5));
    };
    bool first = true;
    add(2, 1500).on_tick = [&] {
        if (std::exchange(first, false))
            one.disable();
    };
    scheduler.run_until(seconds(20));
    EXPECT_THAT(lines, ElementsAre("in@1000"));
}

TEST_F(SchedulerWait, ATickThatThrowsLetsItsTimerGoOn) {
    bool first = true;
    add(1, 1000).on_tick = [&] {
        if (std::exchange(first, false))
            throw std::runtime_error{"a tick failed"};
        write("1");
    };
    EXPECT_THROW(scheduler.run_until(seconds(3)), std::runtime_error);
    scheduler.run_until(seconds(3));
    EXPECT_THAT(lines, ElementsAre("1@2000", "1@3000"));
}

TEST_F(SchedulerLateness, APeriodBegunAfterALateStartCountsFromWhatIsHeard) {
    Timer& chain = add(4, 1000);
    Timer& clock = add(1, 30'000);
    bool first = true;
    chain.on_tick = [&] {
        if (!std::exchange(first, false))
            return write("4");
        scheduler.advance_to(milliseconds(3200));
        chain.restart();
        clock.set_interval(1000);
    };
    scheduler.run_until(milliseconds(5300));
    EXPECT_THAT(lines, ElementsAre("4@4200", "1@4200", "4@5200", "1@5200"));
}

TEST_F(SchedulerLateness, TheOtherTimersKeepTheirMissedTicks) {
    bool first = true;
    add(4, 1000).on_tick = [&] {
        if (std::exchange(first, false))
            scheduler.advance_to(milliseconds(3200));
    };
    add(3, 1000);
    scheduler.run_until(milliseconds(3900));
    EXPECT_THAT(lines, ElementsAre("3@3200", "3@3200", "3@3200"));
    EXPECT_EQ(scheduler.next_due(), seconds(4));
}

TEST_F(SchedulerLateness, ItsOwnMissedTicksAreLeftOutWithoutARestart) {
    bool first = true;
    add(4, 1000).on_tick = [&] {
        write("4");
        if (std::exchange(first, false))
            scheduler.advance_to(milliseconds(3200));
    };
    scheduler.run_until(milliseconds(4000));
    EXPECT_THAT(lines, ElementsAre("4@1000", "4@4000"));
}

} // namespace

} // namespace sonarelle
