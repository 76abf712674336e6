#include "platform/simulated/virtual_time.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "platform/scheduler.h"
#include "platform/timer.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;

class Virtual : public testing::Test {
protected:
    Virtual() {
        timer.on_tick = [this] { write("tick"); };
        timer.set_interval(1000);
        timer.enable();
    }
    void write(const std::string& what) {
        lines.push_back(what + "@" + std::to_string(time.now().count() / frames_per_millisecond));
    }

    Scheduler scheduler;
    VirtualTime time{scheduler};
    Timer timer{"Timer1", 1, scheduler};
    std::vector<std::string> lines;
};

std::string shown(const CalendarTime& t) {
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", t.year, t.month, t.day, t.hour, t.minute,
                  t.second);
    return text;
}

using VirtualRun = Virtual;
using VirtualGesture = Virtual;
using VirtualRender = Virtual;
using VirtualCalendar = Virtual;

TEST_F(VirtualRun, AnHourOfTicksPasses) {
    time.run_for(seconds(3600));
    EXPECT_EQ(lines.size(), 3600U);
    EXPECT_EQ(time.now(), seconds(3600));
}

TEST_F(VirtualRun, TheEndOfTheSpanBelongsToIt) {
    time.run_until(seconds(1));
    EXPECT_THAT(lines, ElementsAre("tick@1000"));
}

TEST_F(VirtualRun, AWaitLetsTheOthersRun) {
    Timer box{"Timer9", 9, scheduler};
    box.on_tick = [&] {
        box.disable();
        time.wait(milliseconds(1500));
        write("answer");
    };
    box.set_interval(600);
    box.enable();
    time.run_for(seconds(1));
    EXPECT_THAT(lines, ElementsAre("tick@1000", "tick@2000", "answer@2100"));
}

TEST_F(VirtualRun, AnEventComesAfterTheTicksOfItsInstant) {
    time.run_until(seconds(1));
    time.event([&] { write("event"); });
    EXPECT_THAT(lines, ElementsAre("tick@1000", "event@1000"));
}

TEST_F(VirtualGesture, ComesOnItsFrameAfterTheTicks) {
    time.at(seconds(1), [&] { write("gesture"); });
    time.at(milliseconds(1500), [&] { write("later"); });
    time.run_for(seconds(2));
    EXPECT_THAT(lines, ElementsAre("tick@1000", "gesture@1000", "later@1500", "tick@2000"));
}

TEST_F(VirtualGesture, ThoseOfOneFrameKeepTheirOrder) {
    time.at(milliseconds(100), [&] { write("first"); });
    time.at(milliseconds(100), [&] { write("second"); });
    time.run_for(milliseconds(100));
    EXPECT_THAT(lines, ElementsAre("first@100", "second@100"));
}

TEST_F(VirtualGesture, ComesWhileABoxIsOpen) {
    time.at(milliseconds(400), [&] { write("gesture"); });
    time.event([&] {
        time.wait(milliseconds(500));
        write("answer");
    });
    EXPECT_THAT(lines, ElementsAre("gesture@400", "answer@500"));
}

TEST_F(VirtualGesture, OfThePastComesWithTheNextRun) {
    time.run_until(milliseconds(500));
    time.at(milliseconds(100), [&] { write("late"); });
    time.run_for(milliseconds(1));
    EXPECT_THAT(lines, ElementsAre("late@500"));
}

TEST_F(VirtualGesture, BeyondTheHorizonItWaits) {
    time.at(milliseconds(501), [&] { write("gesture"); });
    time.run_until(milliseconds(500));
    EXPECT_TRUE(lines.empty());
}

TEST_F(VirtualRender, ReachesEachInstantBeforeItHappens) {
    time.before_instant = [&](Frames frame) {
        lines.push_back("render " + std::to_string(frame.count() / frames_per_millisecond));
    };
    time.at(milliseconds(300), [&] { write("gesture"); });
    time.run_for(milliseconds(1200));
    EXPECT_THAT(lines, ElementsAre("render 300", "gesture@300", "render 1000", "tick@1000", "render 1200"));
}

TEST_F(VirtualRender, NeverGoesBack) {
    std::vector<Frames> reached;
    time.before_instant = [&](Frames frame) { reached.push_back(frame); };
    Timer box{"Timer9", 9, scheduler};
    box.on_tick = [&] { time.wait(milliseconds(700)); };
    box.set_interval(300);
    box.enable();
    time.run_for(seconds(10));
    time.advance_to(time.now() + milliseconds(2500));
    time.run_for(seconds(1));
    EXPECT_TRUE(std::ranges::is_sorted(reached));
}

TEST_F(VirtualRender, GoesOnToTheFrameThatALateDeckIsHeardOn) {
    std::vector<Frames> reached;
    time.before_instant = [&](Frames frame) { reached.push_back(frame); };
    time.advance_to(milliseconds(700));
    time.advance_to(milliseconds(600));
    EXPECT_THAT(reached, ElementsAre(milliseconds(700)));
    EXPECT_EQ(time.now(), milliseconds(700));
}

TEST_F(VirtualCalendar, BeginsOnAMondayMorning) {
    EXPECT_EQ(shown(time.calendar()), "2026-01-05 06:00:00");
}

TEST_F(VirtualCalendar, FollowsTheFramesInWholeSeconds) {
    time.run_until(seconds(2) - Frames{1});
    EXPECT_EQ(shown(time.calendar()), "2026-01-05 06:00:01");
    time.run_until(seconds(2));
    EXPECT_EQ(shown(time.calendar()), "2026-01-05 06:00:02");
}

TEST_F(VirtualCalendar, GoesOverTheEndOfAYear) {
    Scheduler other;
    VirtualTime night{other, {2027, 12, 31, 23, 59, 59}};
    night.run_for(seconds(1));
    EXPECT_EQ(shown(night.calendar()), "2028-01-01 00:00:00");
}

TEST_F(VirtualCalendar, KnowsLeapDays) {
    Scheduler other;
    VirtualTime night{other, {2028, 2, 28, 23, 0, 0}};
    night.run_for(seconds(3600));
    EXPECT_EQ(shown(night.calendar()), "2028-02-29 00:00:00");
}

TEST_F(Virtual, YieldingRunsWhatIsDueAndTakesNoTime) {
    time.at(seconds(1), [this] {
        write("work");
        time.at(seconds(1), [this] { write("gesture"); });
        time.at(seconds(1) + Frames{1}, [this] { write("later"); });
        time.yield();
        write("work");
    });
    time.run_for(seconds(1));
    EXPECT_THAT(lines, ElementsAre("tick@1000", "work@1000", "gesture@1000", "work@1000"));
}

} // namespace

} // namespace sonarelle
