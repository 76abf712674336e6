// The station's time and the clock on the wall.
#include "platform/audio/live_clock.h"

#include <gtest/gtest.h>

#include <chrono>
#include <ctime>

namespace sonarelle {
namespace {

/// The wall clock's seconds that a calendar time is.
std::time_t seconds_of(const CalendarTime& time) {
    std::tm local{};
    local.tm_year = time.year - 1900;
    local.tm_mon = time.month - 1;
    local.tm_mday = time.day;
    local.tm_hour = time.hour;
    local.tm_min = time.minute;
    local.tm_sec = time.second;
    local.tm_isdst = -1;
    return std::mktime(&local);
}

TEST(LiveClock, ShowsWhatTheWallWillShowWhenNowIsHeard) {
    Scheduler scheduler;
    ProgrammeBus bus;
    LiveClock clock{scheduler, bus};
    for (const int ahead : {0, 40}) {
        clock.advance_to(seconds(ahead));
        EXPECT_EQ(clock.now(), seconds(ahead));
        const std::time_t before = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
        const std::time_t shown = seconds_of(clock.calendar());
        const std::time_t after = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
        EXPECT_GE(shown, before + ahead);
        EXPECT_LE(shown, after + ahead);
    }
}

TEST(LiveClock, WaitsUntilItsDriverHasComeSoFar) {
    Scheduler scheduler;
    ProgrammeBus bus;
    LiveClock clock{scheduler, bus};
    clock.wait(seconds(1)); // without a driver there is no time to wait for
    clock.yield();
    Frames until;
    int yielded = 0;
    clock.run_until = [&](Frames frame) { until = frame; };
    clock.run_pending = [&] { ++yielded; };
    clock.advance_to(seconds(5));
    clock.wait(seconds(2));
    clock.yield();
    EXPECT_EQ(until, seconds(7));
    EXPECT_EQ(yielded, 1);
}

} // namespace
} // namespace sonarelle
