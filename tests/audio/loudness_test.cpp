#include <gtest/gtest.h>

#include <limits>

#include "platform/audio/loudness.h"
#include "tone.h"

namespace sonarelle {
namespace {

constexpr std::size_t second = 48000;

// -200 where there is nothing.
double loudness_of(const std::vector<float>& frames) {
    MomentaryLoudness meter;
    meter.feed(frames);
    return meter.lufs().value_or(-200);
}

TEST(MomentaryLoudness, FullSineInOneChannelIsThreeBelowFull) {
    EXPECT_NEAR(loudness_of(tone(997, {1, 0}, second)), -3.01, 0.02);
    EXPECT_NEAR(loudness_of(tone(997, {0, 1}, second)), -3.01, 0.02);
}

TEST(MomentaryLoudness, StereoSineReadsItsPeak) {
    for (const double level : {-18.0, -23.0, -33.0, -40.0})
        EXPECT_NEAR(loudness_of(tone(1000, {decibels(level), decibels(level)}, second)), level, 0.1);
}

// The weighting at 50 Hz and 10 kHz is that of its two filters' transfer functions.
TEST(MomentaryLoudness, LowsWeighLessAndHighsMoreThanTheMiddle) {
    EXPECT_NEAR(loudness_of(tone(50, {0.1, 0.1}, 2 * second)), -20 - 4.63, 0.02);
    EXPECT_NEAR(loudness_of(tone(10000, {0.1, 0.1}, second)), -20 + 3.35, 0.02);
}

TEST(MomentaryLoudness, SilenceIsNothing) {
    MomentaryLoudness meter;
    EXPECT_FALSE(meter.lufs().has_value());
    meter.feed(std::vector<float>(2 * second));
    EXPECT_FALSE(meter.lufs().has_value());
}

TEST(MomentaryLoudness, CoversTheLastFourHundredMilliseconds) {
    MomentaryLoudness meter;
    meter.feed(tone(1000, {0.1, 0.1}, second));
    meter.feed(std::vector<float>(2 * second / 5));
    EXPECT_NEAR(meter.lufs().value_or(0), -20 - 3.01, 0.1) << "half of it is still heard";
    meter.feed(std::vector<float>(2 * second / 5 + 2 * second / 100));
    EXPECT_FALSE(meter.lufs().has_value());
}

TEST(MomentaryLoudness, IsTheSameInWhateverBlocksItIsFed) {
    const auto frames = tone(440, {0.3, 0.5}, second);
    MomentaryLoudness meter;
    for (std::span<const float> rest{frames}; !rest.empty();) {
        const std::size_t count = std::min<std::size_t>(rest.size(), 2 * 331);
        meter.feed(rest.first(count));
        rest = rest.subspan(count);
    }
    EXPECT_EQ(meter.lufs(), loudness_of(frames));
}

TEST(MomentaryLoudness, ASampleThatIsNoNumberIsForgotten) {
    auto frames = tone(1000, {0.1, 0.1}, second);
    frames[10] = std::numeric_limits<float>::quiet_NaN();
    frames[13] = std::numeric_limits<float>::infinity();
    EXPECT_NEAR(loudness_of(frames), -20, 0.1);
}

} // namespace
} // namespace sonarelle
