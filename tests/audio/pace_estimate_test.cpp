#include <gtest/gtest.h>

#include "platform/audio/pace_estimate.h"

namespace sonarelle {
namespace {

using namespace std::chrono_literals;

constexpr Frames block{2048};
constexpr Frames reach{3 * 2048};
constexpr PaceEstimate::Instant start{1h};

std::chrono::nanoseconds time_of(Frames frames) {
    return std::chrono::nanoseconds{frames.count() * 62500 / 3};
}

/// The count of a server that makes room every 55 ms and gets as many whole blocks as go in.
Frames rendered_at(std::chrono::nanoseconds since_start) {
    const auto room = milliseconds(since_start / 55ms * 55);
    return Frames{(room.count() / block.count() + 1) * block.count()};
}

TEST(PaceEstimate, TellsTheEndOfTheBlockThatAFrameIsIn) {
    PaceEstimate pace;
    pace.observe(block, block, reach, start);
    EXPECT_EQ(pace.when_rendered(Frames{2049}), start + time_of(Frames{4096}) - time_of(block));
    EXPECT_EQ(pace.when_rendered(Frames{4096}), start + time_of(Frames{4096}) - time_of(block));
}

TEST(PaceEstimate, IsNeverLaterThanABurstHoweverOftenTheCountIsSeen) {
    PaceEstimate pace;
    for (auto now = 0ns; now < 20s; now += 1ms)
        pace.observe(rendered_at(now), block, reach, start + now);
    for (auto now = 20s + 0ns; now < 30s; now += 1ms) {
        const Frames seen = rendered_at(now);
        pace.observe(seen, block, reach, start + now);
        if (const Frames next = rendered_at(now + 1ms); next > seen) {
            ASSERT_LE(pace.when_rendered(seen + Frames{1}), start + now + 2ms) << now / 1ms;
        }
    }
}

TEST(PaceEstimate, FollowsASlowClock) {
    PaceEstimate pace;
    const auto slow = [](Frames frames) { return time_of(frames) + time_of(frames) / 2000; };
    Frames rendered;
    for (; rendered < seconds(60); rendered += block)
        pace.observe(rendered, block, reach, start + slow(rendered));
    EXPECT_GE(pace.when_rendered(rendered), start + slow(rendered) - 1ms);
}

TEST(PaceEstimate, BeginsAnewAfterAStall) {
    PaceEstimate pace;
    pace.observe(block, block, reach, start);
    pace.observe(block + block, block, reach, start + 5s);
    EXPECT_GE(pace.when_rendered(block + block + block), start + 5s + 42ms);
}

TEST(PaceEstimate, GivesTheMomentOfWhatIsRenderedAlreadyAsItWas) {
    PaceEstimate pace;
    pace.observe(Frames{4800}, Frames{480}, Frames{960}, start);
    EXPECT_EQ(pace.when_rendered(Frames{4800}), start);
    EXPECT_EQ(pace.when_rendered(Frames{100}), start);
    EXPECT_EQ(pace.when_rendered(Frames{4801}), start + 10ms);
    EXPECT_EQ(pace.when_rendered(Frames{5280}), start + 10ms);
    EXPECT_EQ(pace.when_rendered(Frames{5281}), start + 20ms);
}

TEST(PaceEstimate, KeepsTheEarliestSightAndForgetsAThousandthOfTheTimeSince) {
    PaceEstimate pace;
    pace.observe(Frames{480}, Frames{480}, Frames{960}, start);
    pace.observe(Frames{48'480}, Frames{480}, Frames{960}, start + 1s + 100ms);
    EXPECT_EQ(pace.when_rendered(Frames{48'480}), start + 1s + 1100us);
    pace.observe(Frames{96'480}, Frames{480}, Frames{960}, start + 2s);
    EXPECT_EQ(pace.when_rendered(Frames{96'480}), start + 2s) << "seen earlier again";
}

TEST(PaceEstimate, TakesMoreThanItsReachAndAFifthOfASecondForAStall) {
    for (const auto& [late, stalls] : {std::pair{220ms, false}, {221ms, true}}) { // the reach is 20 ms
        PaceEstimate pace;
        pace.observe(Frames{480}, Frames{480}, Frames{960}, start);
        pace.observe(Frames{960}, Frames{480}, Frames{960}, start + 10ms + late);
        EXPECT_EQ(pace.when_rendered(Frames{960}) == start + 10ms + late, stalls) << late.count();
    }
}

TEST(PaceEstimate, KnowsNoBlockBeforeTheFirstOne) {
    PaceEstimate pace;
    pace.observe(Frames{0}, Frames{0}, Frames{0}, start);
    EXPECT_EQ(pace.when_rendered(Frames{480}), start + 10ms);
}

} // namespace
} // namespace sonarelle
