#include "app/outil/silence_watch.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace sonarelle::test {

namespace {

using Silences = std::vector<std::pair<std::int64_t, std::int64_t>>; // first frame, length

class SilenceWatchTest : public testing::Test {
protected:
    SilenceWatchTest() {
        watch.on_silence_over = [this](Frames from, Frames span) { told.emplace_back(from.count(), span.count()); };
    }

    void add(std::int64_t frames, float left, float right) {
        for (std::int64_t frame = 0; frame < frames; ++frame) {
            air.push_back(left);
            air.push_back(right);
        }
    }
    [[nodiscard]] Silences told_in_blocks_of(std::size_t frames) {
        for (std::size_t at = 0; at < air.size(); at += 2 * frames)
            watch.take(std::span{air}.subspan(at, std::min(2 * frames, air.size() - at)));
        watch.end();
        return told;
    }

    SilenceWatch watch;
    std::vector<float> air;
    Silences told;
};

} // namespace

TEST_F(SilenceWatchTest, CountsASilenceToTheFrameInBlocksOfAnySize) {
    add(1001, 0.5F, 0.5F);
    add(2 * frame_rate + 7, 0.0009F, 0);
    add(100, 0.5F, 0.5F);
    EXPECT_EQ(told_in_blocks_of(512), (Silences{{1001, 2 * frame_rate + 7}}));
    told.clear();
    watch = {};
    watch.on_silence_over = [this](Frames from, Frames span) { told.emplace_back(from.count(), span.count()); };
    EXPECT_EQ(told_in_blocks_of(10 * frame_rate), (Silences{{1001, 2 * frame_rate + 7}}));
}

TEST_F(SilenceWatchTest, LeavesAShorterOneOut) {
    add(10, 0.5F, 0.5F);
    add(2 * frame_rate - 1, 0, 0);
    add(10, 0.5F, 0.5F);
    EXPECT_EQ(told_in_blocks_of(480), Silences{});
}

TEST_F(SilenceWatchTest, HearsEitherChannel) {
    add(frame_rate + 5, 0, 0);
    add(1, 0, -0.001F);
    add(2 * frame_rate, 0, 0);
    add(1, 0.001F, 0);
    add(frame_rate, 0, 0);
    EXPECT_EQ(told_in_blocks_of(2048), (Silences{{frame_rate + 6, 2 * frame_rate}}));
}

TEST_F(SilenceWatchTest, EndsItsSilenceWithTheProgramme) {
    add(3 * frame_rate, 0, 0);
    EXPECT_EQ(told_in_blocks_of(1000), (Silences{{0, 3 * frame_rate}}));
}

TEST_F(SilenceWatchTest, TakesWhatWasNotHeardForSoundInItsPlace) {
    add(2 * frame_rate, 0, 0);
    watch.take(air);
    watch.skip(Frames{1000});
    watch.take(air);
    watch.end();
    EXPECT_EQ(told, (Silences{{0, 2 * frame_rate}, {2 * frame_rate + 1000, 2 * frame_rate}}));
}

} // namespace sonarelle::test
