#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "platform/audio/limiter.h"

namespace sonarelle {
namespace {

constexpr float quiet = 0.25F;

// A loud frame and so many quiet ones behind it.
std::vector<float> behind_a_peak(float left, float right, std::size_t frames) {
    std::vector<float> samples(2 * (1 + frames), quiet);
    samples[0] = left;
    samples[1] = right;
    return samples;
}

float gain_at(const std::vector<float>& limited, std::size_t frame) {
    return limited.at(2 * frame) / quiet;
}

TEST(Limiter, BringsAPeakDownToTheCeilingAndItsOtherChannelAlike) {
    auto frames = behind_a_peak(2.0F, -0.5F, 0);
    Limiter{}.apply(frames);
    EXPECT_FLOAT_EQ(frames[0], Limiter::ceiling);
    EXPECT_FLOAT_EQ(frames[1], -Limiter::ceiling / 4);
}

TEST(Limiter, IsRuledByTheLouderChannelWhicheverItIs) {
    auto frames = behind_a_peak(0.5F, -2.0F, 0);
    Limiter{}.apply(frames);
    EXPECT_FLOAT_EQ(frames[0], Limiter::ceiling / 4);
    EXPECT_FLOAT_EQ(frames[1], -Limiter::ceiling);
}

TEST(Limiter, TellsTheGreatestOfEachChannelOfWhatItGives) {
    auto frames = behind_a_peak(2.0F, -0.5F, 20);
    const auto peaks = Limiter{}.apply(frames);
    EXPECT_FLOAT_EQ(peaks[0], Limiter::ceiling);
    EXPECT_FLOAT_EQ(peaks[1], Limiter::ceiling / 4);
}

TEST(Limiter, TellsAPeakInEveryPlaceOfABlockOfItsOwnChannel) {
    for (std::size_t place = 0; place < 26; ++place) {
        std::vector<float> frames(26, quiet);
        frames[place] = -0.5F;
        const auto peaks = Limiter{}.apply(frames);
        EXPECT_EQ(peaks[place % 2], 0.5F) << place;
        EXPECT_EQ(peaks[1 - place % 2], quiet) << place;
    }
}

TEST(Limiter, ChangesNoShapeBelowTheCeilingOfALoudPlace) {
    Limiter limiter;
    std::vector<float> frames;
    for (int sample = 0; sample < 960; ++sample)
        frames.push_back(2.0F * static_cast<float>(std::sin((sample / 2) * 0.1)));
    const auto before = frames;
    limiter.apply(frames);
    for (std::size_t sample = 200; sample < frames.size(); ++sample)
        EXPECT_NEAR(frames[sample], before[sample] * Limiter::ceiling / 2, 0.02F) << sample;
}

TEST(Limiter, ComesBackWithATimeConstantOf50Milliseconds) {
    auto frames = behind_a_peak(2 * Limiter::ceiling, 0, 9600);
    Limiter{}.apply(frames);
    EXPECT_NEAR(gain_at(frames, 1), 0.5F, 0.001F);
    EXPECT_NEAR(gain_at(frames, 2400), 1 - 0.5 * std::exp(-1.0), 0.001F);
    EXPECT_NEAR(gain_at(frames, 9600), 1 - 0.5 * std::exp(-4.0), 0.001F);
}

TEST(Limiter, GoesOnFromBlockToBlock) {
    auto whole = behind_a_peak(2.0F, 1.0F, 999);
    auto pieces = whole;
    Limiter{}.apply(whole);
    Limiter limiter;
    for (std::size_t frame = 0; frame < 1000; frame += 100)
        limiter.apply(std::span{pieces}.subspan(2 * frame, 200));
    EXPECT_EQ(pieces, whole);
}

TEST(Limiter, FindsAPeakInEveryPlaceOfABlock) {
    for (std::size_t place = 0; place < 26; ++place) {
        std::vector<float> frames(26, quiet);
        frames[place] = -1.0F;
        Limiter{}.apply(frames);
        EXPECT_FLOAT_EQ(frames[place], -Limiter::ceiling) << place;
    }
}

} // namespace
} // namespace sonarelle
