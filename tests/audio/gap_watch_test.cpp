#include <gtest/gtest.h>

#include "platform/audio/gap_watch.h"

namespace sonarelle {
namespace {

using namespace std::chrono_literals;

/// A card that asks for blocks at its pace.
class PacedCard {
public:
    static constexpr Frames block{2048};

    void ask_for(Frames span, std::chrono::nanoseconds lateness = 0ns) {
        for (const Frames end = asked_ + span; asked_ < end; asked_ += block) {
            watch.asked(asked_, due_ + lateness);
            due_ += std::chrono::nanoseconds{block.count() * 62500 / 3 + drift};
        }
    }
    void fall_behind(std::chrono::nanoseconds time) { due_ += time; }

    GapWatch watch;
    std::int64_t drift = 0; ///< Nanoseconds a block.

private:
    Frames asked_;
    GapWatch::Instant due_{1h};
};

TEST(GapWatch, FindsNoneInASteadyPace) {
    PacedCard card;
    card.ask_for(seconds(20));
    EXPECT_EQ(card.watch.gaps().count, 0);
}

TEST(GapWatch, FindsAGapWithItsLength) {
    PacedCard card;
    card.ask_for(seconds(5));
    card.fall_behind(30ms);
    card.ask_for(seconds(8));
    EXPECT_EQ(card.watch.gaps().count, 1);
    EXPECT_EQ(card.watch.gaps().lost, milliseconds(30));
}

TEST(GapWatch, AddsGapsUp) {
    PacedCard card;
    card.ask_for(seconds(5));
    for (int gap = 0; gap < 3; ++gap) {
        card.fall_behind(10ms);
        card.ask_for(seconds(6));
    }
    EXPECT_EQ(card.watch.gaps().count, 3);
    EXPECT_EQ(card.watch.gaps().lost, milliseconds(30));
}

TEST(GapWatch, TakesALateThreadForNoGap) {
    PacedCard card;
    card.ask_for(seconds(5));
    for (int hold = 0; hold < 3; ++hold) {
        card.ask_for(seconds(3), 40ms); // longer than a span, shorter than two
        card.ask_for(seconds(3));
    }
    EXPECT_EQ(card.watch.gaps().count, 0);
}

TEST(GapWatch, TellsAGapFromTheLateThreadBehindIt) {
    PacedCard card;
    card.ask_for(seconds(5));
    card.fall_behind(10ms);
    card.ask_for(seconds(3), 40ms);
    card.ask_for(seconds(8));
    EXPECT_EQ(card.watch.gaps().count, 1);
    EXPECT_EQ(card.watch.gaps().lost, milliseconds(10));
}

TEST(GapWatch, TakesBurstsForNoGap) {
    for (const auto period : {50ms, 55ms, 80ms}) {
        GapWatch watch;
        Frames asked;
        for (auto now = 0ms; now < 60s; now += period)
            for (; asked + PacedCard::block <= milliseconds(now.count()); asked += PacedCard::block)
                watch.asked(asked, GapWatch::Instant{1h} + now);
        EXPECT_EQ(watch.gaps().count, 0) << period.count();
    }
}

TEST(GapWatch, TakesASlowClockForNoGap) {
    PacedCard card;
    card.drift = 42'667'000 / 2000; // half a thousandth
    card.ask_for(seconds(60));
    EXPECT_EQ(card.watch.gaps().count, 0);
}

TEST(GapWatch, BeginsAnewWithAnotherCard) {
    PacedCard card;
    card.ask_for(seconds(5));
    card.fall_behind(100ms);
    card.watch.restart();
    card.ask_for(seconds(8));
    EXPECT_EQ(card.watch.gaps().count, 0);
    card.fall_behind(20ms);
    card.ask_for(seconds(8));
    EXPECT_EQ(card.watch.gaps().lost, milliseconds(20));
}

/// A card whose first request has come and whose next ones are those of whole spans.
class SpannedCard : public PacedCard {
public:
    static constexpr Frames whole = PacedCard::block + Frames{46 * 2048}; // the least above two seconds
    SpannedCard() { ask_for(block); }
};

TEST(GapWatch, TellsAGapAtTheEndOfTheSecondSpanBehindIt) {
    SpannedCard card;
    card.ask_for(SpannedCard::whole);
    card.fall_behind(30ms);
    card.ask_for(SpannedCard::whole + SpannedCard::whole - PacedCard::block);
    EXPECT_EQ(card.watch.gaps().count, 0);
    card.ask_for(PacedCard::block);
    EXPECT_EQ(card.watch.gaps().count, 1);
}

TEST(GapWatch, TakesALateThreadRightBehindAGapForNoOther) {
    SpannedCard card;
    card.ask_for(SpannedCard::whole);
    card.fall_behind(10ms);
    card.ask_for(SpannedCard::whole + SpannedCard::whole);
    ASSERT_EQ(card.watch.gaps().count, 1);
    card.ask_for(SpannedCard::whole, 40ms);
    card.ask_for(seconds(10));
    EXPECT_EQ(card.watch.gaps().count, 1);
    EXPECT_EQ(card.watch.gaps().lost, milliseconds(10));
}

TEST(GapWatch, TakesFiveMillisecondsForAGapAndNothingLess) {
    PacedCard card;
    card.ask_for(seconds(5));
    card.fall_behind(5ms - 1us);
    card.ask_for(seconds(10));
    EXPECT_EQ(card.watch.gaps().count, 0);
    card.fall_behind(5ms + 1us);
    card.ask_for(seconds(10));
    EXPECT_EQ(card.watch.gaps().lost, milliseconds(5));
}

TEST(GapWatch, TellsTheNearestFrame) {
    for (const auto& [gap, frames] : {std::pair{10'010us, 480}, {10'011us, 481}}) { // 480.5 frames lie between
        PacedCard card;
        card.ask_for(seconds(5));
        card.fall_behind(gap);
        card.ask_for(seconds(10));
        EXPECT_EQ(card.watch.gaps().lost, Frames{frames});
    }
}

TEST(GapWatch, FollowsAFastClockAndFindsItsGap) {
    PacedCard card;
    card.drift = -42'667'000 / 2000;
    card.ask_for(seconds(60));
    EXPECT_EQ(card.watch.gaps().count, 0);
    card.fall_behind(50ms);
    card.ask_for(seconds(10));
    EXPECT_EQ(card.watch.gaps().count, 1);
    EXPECT_NEAR(in_seconds(card.watch.gaps().lost), 0.05, 0.003);
}

} // namespace
} // namespace sonarelle
