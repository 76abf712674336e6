#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <span>
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

/// The same, frame by frame, in doubles.
std::vector<double> limited_by_hand(const std::vector<float>& frames) {
    std::vector<double> limited;
    double gain = 1;
    for (std::size_t at = 0; at < frames.size(); at += 2) {
        gain += (1 - gain) / 2400;
        if (gain > 0.9999)
            gain = 1;
        const double peak = std::max(std::abs(frames[at]), std::abs(frames[at + 1]));
        gain = std::min(gain, double{Limiter::ceiling} / peak);
        limited.insert(limited.end(), {frames[at] * gain, frames[at + 1] * gain});
    }
    return limited;
}

TEST(Limiter, FollowsTheGreaterChannelFromFrameToFrame) {
    std::vector<float> frames;
    for (int frame = 0; frame < 40'000; ++frame) {
        const double swell = 1.6 * std::sin(frame * 0.0004);
        frames.push_back(static_cast<float>(swell * std::sin(frame * 0.031)));
        frames.push_back(static_cast<float>(swell * std::cos(frame * 0.047)));
    }
    const std::vector<double> expected = limited_by_hand(frames);
    Limiter limiter;
    for (std::span<float> rest{frames}; !rest.empty(); rest = rest.subspan(std::min<std::size_t>(rest.size(), 886)))
        limiter.apply(rest.first(std::min<std::size_t>(rest.size(), 886)));
    for (std::size_t sample = 0; sample < frames.size(); ++sample)
        ASSERT_NEAR(frames[sample], expected[sample], 1e-4) << sample;
}

TEST(Limiter, LetsGoOneTenThousandthBeforeItIsTransparent) {
    std::vector<float> frames = behind_a_peak(2.0F, 2.0F, 24'000);
    Limiter{}.apply(frames);
    std::size_t first = 0;
    while (frames[2 * first] != quiet)
        ++first;
    const double half = Limiter::ceiling / 2;
    EXPECT_NEAR(static_cast<double>(first), std::log(0.0001 / (1 - half)) / std::log1p(-1.0 / 2400), 100)
        << "in steps of a float";
    EXPECT_LT(frames[2 * first - 2], quiet);
    EXPECT_TRUE(std::all_of(frames.begin() + std::ptrdiff_t(2 * first), frames.end(),
                            [](float sample) { return sample == quiet; }));
}

} // namespace
} // namespace sonarelle
