#include <gtest/gtest.h>

#include "platform/audio/programme_bus.h"

namespace sonarelle {
namespace {

using namespace std::chrono_literals;

/// A card that asks for so many blocks of 2048 frames every `period`.
class BurstingCard {
public:
    static constexpr Frames block{2048};

    void ask_for(std::chrono::seconds time, int blocks, std::chrono::nanoseconds period) {
        for (const auto end = now_ + time; now_ < end; now_ += period)
            for (int pull = 0; pull < blocks; ++pull)
                bursts.pulled(block, now_ + pull * 300us);
    }
    [[nodiscard]] std::int64_t greatest_in_blocks() const { return bursts.greatest().count() / block.count(); }

    PullBursts bursts;

private:
    PullBursts::Instant now_{1h};
};

constexpr std::chrono::nanoseconds one_block_time{42'666'667};

TEST(PullBursts, AreSingleBlocksOnASteadyCard) {
    BurstingCard card;
    card.ask_for(10s, 1, one_block_time);
    EXPECT_EQ(card.greatest_in_blocks(), 1);
}

TEST(PullBursts, AreAllBlocksWithinTenMilliseconds) {
    BurstingCard card;
    card.ask_for(10s, 4, 4 * one_block_time);
    EXPECT_EQ(card.greatest_in_blocks(), 4);
}

TEST(PullBursts, AreNotMadeOfSmallBlocksAtTheirPace) {
    PullBursts bursts;
    PullBursts::Instant now{1h};
    for (int pull = 0; pull < 10'000; ++pull)
        bursts.pulled(Frames{256}, now += 5333us);
    EXPECT_EQ(bursts.greatest(), Frames{512}); // two fall into ten milliseconds
}

TEST(PullBursts, AreRememberedForAMinute) {
    BurstingCard card;
    card.ask_for(1s, 4, 4 * one_block_time);
    card.ask_for(60s, 1, one_block_time);
    EXPECT_EQ(card.greatest_in_blocks(), 4);
}

TEST(PullBursts, AreForgottenWhenTheyHaveShrunk) {
    BurstingCard card;
    card.ask_for(1s, 4, 4 * one_block_time);
    card.ask_for(120s, 2, 2 * one_block_time);
    EXPECT_EQ(card.greatest_in_blocks(), 2);
}

TEST(PullBursts, ThatFilledACardAtItsOpeningAreForgotten) {
    BurstingCard card;
    card.ask_for(1s, 7, 1s);
    card.ask_for(120s, 1, one_block_time);
    EXPECT_EQ(card.greatest_in_blocks(), 1);
}

TEST(PullBursts, AreThoseOfTheCardThatWasOpenedLast) {
    BurstingCard card;
    card.ask_for(100s, 2, 2 * one_block_time);
    card.ask_for(1s, 5, 5 * one_block_time);
    EXPECT_EQ(card.greatest_in_blocks(), 5);
}

TEST(PullBursts, AreForgottenOverALongSilence) {
    BurstingCard card;
    card.ask_for(1s, 4, 4 * one_block_time);
    card.ask_for(300s, 1, 300s);
    card.ask_for(1s, 1, one_block_time);
    EXPECT_EQ(card.greatest_in_blocks(), 1);
}

TEST(PullBursts, EndTenMillisecondsBehindTheirFirstBlock) {
    PullBursts bursts;
    constexpr PullBursts::Instant now{1h};
    bursts.pulled(Frames{100}, now);
    bursts.pulled(Frames{20}, now + 10ms - 1ns);
    EXPECT_EQ(bursts.greatest(), Frames{120});
    bursts.pulled(Frames{119}, now + 10ms);
    EXPECT_EQ(bursts.greatest(), Frames{120});
    bursts.pulled(Frames{2}, now + 20ms - 1ns);
    EXPECT_EQ(bursts.greatest(), Frames{121});
}

TEST(PullBursts, AreForgottenAMinuteBehindTheirOwn) {
    PullBursts bursts;
    constexpr PullBursts::Instant now{1h};
    const auto greatest_after = [&](PullBursts::Instant pulled_at) {
        bursts.pulled(Frames{10}, pulled_at);
        return bursts.greatest();
    };
    bursts.pulled(Frames{500}, now);
    EXPECT_EQ(greatest_after(now + 60s - 1ns), Frames{500});
    EXPECT_EQ(greatest_after(now + 60s), Frames{500});
    EXPECT_EQ(greatest_after(now + 120s - 1ns), Frames{500});
    EXPECT_EQ(greatest_after(now + 120s), Frames{20}) << "two blocks on end";
}

TEST(PullReach, IsTwoBlocksWhereBlocksComeOneByOne) {
    ProgrammeBus bus;
    std::vector<float> block(2 * 1024);
    bus.bursts().pulled(Frames{1024}, PullBursts::Instant{1h});
    bus.render(block.data(), 1024);
    EXPECT_EQ(bus.pull_reach(), Frames{2048});
}

TEST(PullReach, IsTheGreatestBurstAndOneBlock) {
    ProgrammeBus bus;
    std::vector<float> block(2 * 1024);
    for (int pull = 0; pull < 3; ++pull) {
        bus.bursts().pulled(Frames{1024}, PullBursts::Instant{1h});
        bus.render(block.data(), 1024);
    }
    EXPECT_EQ(bus.pull_reach(), Frames{4096});
}

} // namespace
} // namespace sonarelle
