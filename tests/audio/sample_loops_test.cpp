// The loops over every sample, over blocks of any length.
#include "platform/audio/sample_loops.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace sonarelle {
namespace {

constexpr std::size_t longest = 50; // several groups and a rest

/// Different from place to place.
std::vector<float> numbered(std::size_t count, float step) {
    std::vector<float> samples;
    for (std::size_t sample = 0; sample < count; ++sample)
        samples.push_back(step * static_cast<float>(sample + 1));
    return samples;
}

TEST(SampleLoops, AddEverySampleWithItsGainAndTouchNothingBehind) {
    for (std::size_t count = 0; count <= longest; ++count) {
        const auto from = numbered(count, 0.01F);
        auto to = numbered(count + 1, -2.0F);
        auto expected = to;
        for (std::size_t sample = 0; sample < count; ++sample)
            expected[sample] += from[sample] * 0.25F;
        add_with_gain(from.data(), count, 0.25F, to.data());
        EXPECT_EQ(to, expected) << count;
    }
}

TEST(SampleLoops, CopyEverySampleAndTouchNothingBehind) {
    for (std::size_t count = 0; count <= longest; ++count) {
        const auto from = numbered(count, 1.0F);
        std::vector<float> to(count + 1, -7.0F);
        copy_cleaned(from.data(), count, to.data());
        auto expected = from;
        expected.push_back(-7.0F);
        EXPECT_EQ(to, expected) << count;
    }
}

TEST(SampleLoops, CopySilenceForWhatIsNoSound) {
    constexpr float infinite = std::numeric_limits<float>::infinity();
    const std::vector<float> damaged{64.0F, -64.0F, 64.1F, -64.1F, infinite, -infinite, std::nanf(""), 1e-30F};
    const std::vector<float> expected{64.0F, -64.0F, 0, 0, 0, 0, 0, 1e-30F};
    for (std::size_t before = 0; before < 20; ++before) {
        std::vector<float> from(before, 0.5F);
        from.insert(from.end(), damaged.begin(), damaged.end());
        std::vector<float> to(from.size());
        copy_cleaned(from.data(), from.size(), to.data());
        EXPECT_EQ(std::vector<float>(to.begin() + std::ptrdiff_t(before), to.end()), expected) << before;
    }
}

TEST(SampleLoops, FindThePeakOfEachChannelInEveryPlace) {
    for (std::size_t place = 0; place < longest; ++place)
        for (const float peak : {3.0F, -3.0F}) {
            std::vector<float> frames(longest + 2, 0.5F);
            frames[place] = peak;
            const auto peaks = peaks_of(frames.data(), longest);
            EXPECT_EQ(peaks[place % 2], 3.0F) << place;
            EXPECT_EQ(peaks[1 - place % 2], 0.5F) << place;
        }
}

TEST(SampleLoops, FindNoPeakBehindTheEnd) {
    for (std::size_t count = 0; count <= longest; count += 2) {
        std::vector<float> frames(count, 0.5F);
        frames.insert(frames.end(), {9.0F, 9.0F});
        const float expected = count == 0 ? 0 : 0.5F;
        EXPECT_EQ(peaks_of(frames.data(), count), (std::array{expected, expected})) << count;
    }
}

TEST(SampleLoops, MakeSixteenBitsOfEverySampleAndTouchNothingBehind) {
    for (const float loudest : {1000.0F, 40'000.0F}) // of which the second has to be cut
        for (std::size_t count = 1; count <= longest; ++count) {
            auto from = numbered(count, 1.0F / 32768);
            from.back() = -loudest / 32768;
            std::vector<std::int16_t> to(count + 1, 77);
            to_16_bits(from.data(), count, to.data());
            for (std::size_t sample = 0; sample + 1 < count; ++sample)
                EXPECT_EQ(to[sample], static_cast<int>(sample) + 1) << count;
            EXPECT_EQ(to[count - 1], loudest < 32768 ? -1000 : -32768) << count;
            EXPECT_EQ(to[count], 77) << count;
        }
}

} // namespace
} // namespace sonarelle
