#include <gtest/gtest.h>

#include <array>
#include <cmath>
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

/// The two filters as the standard writes them, at 48 kHz, over everything.
std::vector<double> weighted_by_hand(const std::vector<float>& frames, std::size_t channel) {
    constexpr std::array<std::array<double, 5>, 2> filters{
        {{1.53512485958697, -2.69169618940638, 1.19839281085285, -1.69065929318241, 0.73248077421585},
         {1.0, -2.0, 1.0, -1.99004745483398, 0.99007225036621}}};
    std::vector<double> samples;
    for (std::size_t sample = channel; sample < frames.size(); sample += 2)
        samples.push_back(frames[sample]);
    for (const auto& [b0, b1, b2, a1, a2] : filters) {
        const std::vector<double> in = samples;
        const auto at = [](const std::vector<double>& values, std::size_t place, std::size_t back) {
            return place < back ? 0 : values[place - back];
        };
        for (std::size_t place = 0; place < in.size(); ++place)
            samples[place] = b0 * in[place] + b1 * at(in, place, 1) + b2 * at(in, place, 2) -
                             a1 * at(samples, place, 1) - a2 * at(samples, place, 2);
    }
    return samples;
}

TEST(MomentaryLoudness, IsThatOfTheLastFortyWholeStepsByTheStandard) {
    auto frames = tone(70, {0.05, 0.4}, second);
    const auto highs = tone(9000, {0.3, 0.01}, second);
    for (std::size_t sample = second; sample < frames.size(); ++sample) // another sound from its middle on
        frames[sample] += highs[sample];
    const std::array weighted{weighted_by_hand(frames, 0), weighted_by_hand(frames, 1)};
    for (const std::size_t end : {480U, 4800U, 24'479U, 24'480U, 30'000U, 47'999U}) {
        MomentaryLoudness meter;
        meter.feed(std::span{frames}.first(2 * end));
        const std::size_t whole = end / 480 * 480;
        double power = 0;
        for (std::size_t frame = whole < 19'200 ? 0 : whole - 19'200; frame < whole; ++frame)
            power += std::pow(weighted[0][frame], 2) + std::pow(weighted[1][frame], 2);
        EXPECT_NEAR(meter.lufs().value_or(-200), -0.691 + 10 * std::log10(power / 19'200), 1e-6) << end;
    }
}

TEST(MomentaryLoudness, BelowSeventyUnderFullIsSilence) {
    EXPECT_NEAR(loudness_of(tone(997, {decibels(-69.9), decibels(-69.9)}, second)), -69.9, 0.02);
    EXPECT_EQ(loudness_of(tone(997, {decibels(-70.1), decibels(-70.1)}, second)), -200);
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
