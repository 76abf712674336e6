#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>
#include <random>

#include "platform/audio/spectrum.h"
#include "tone.h"

namespace sonarelle {
namespace {

constexpr std::size_t bands = 24;

std::vector<float> bands_of(const std::vector<float>& frames) {
    Spectrum spectrum{bands};
    const auto levels = spectrum.bands_of(frames);
    return {levels.begin(), levels.end()};
}

TEST(Spectrum, ASineAtABandsCentreIsLoudestThere) {
    for (std::size_t band = 2; band < bands; ++band) {
        const auto levels = bands_of(tone(Spectrum{bands}.centre(band), {1, 1}, Spectrum::window_frames));
        EXPECT_EQ(std::max_element(levels.begin(), levels.end()) - levels.begin(), static_cast<std::ptrdiff_t>(band));
    }
}

TEST(Spectrum, ReadsTheLevelOfASine) {
    for (const double level : {0.0, -20.0, -60.0})
        for (const std::size_t band : {6U, 12U, 23U}) {
            const double peak = decibels(level);
            const auto levels = bands_of(tone(Spectrum{bands}.centre(band), {peak, peak}, Spectrum::window_frames));
            EXPECT_LE(levels[band], level + 0.1) << band;
            EXPECT_GE(levels[band], level - 1.5) << band;
        }
}

TEST(Spectrum, ASineOnALineOfTheTransformReadsExactly) {
    const auto levels = bands_of(tone(3000, {0.5, 0.5}, Spectrum::window_frames)); // line 128
    EXPECT_NEAR(*std::max_element(levels.begin(), levels.end()), -6.02, 0.01);
}

TEST(Spectrum, FarFromASineThereIsNothing) {
    const auto levels = bands_of(tone(Spectrum{bands}.centre(12), {1, 1}, Spectrum::window_frames));
    for (const std::size_t band : {0U, 6U, 18U, 23U})
        EXPECT_LT(levels[band], -60) << band;
}

TEST(Spectrum, ChannelsInOppositePhaseDoNotCancel) {
    const auto levels = bands_of(tone(3000, {1, -1}, Spectrum::window_frames));
    EXPECT_NEAR(*std::max_element(levels.begin(), levels.end()), 0, 0.01);
}

TEST(Spectrum, ChannelsAQuarterOfATurnApartReadAsBoth) {
    std::vector<float> frames;
    for (std::size_t frame = 0; frame < Spectrum::window_frames; ++frame) {
        const double turn = 2 * std::numbers::pi * 3000 * static_cast<double>(frame) / 48000;
        frames.push_back(static_cast<float>(std::sin(turn)));
        frames.push_back(static_cast<float>(std::cos(turn)));
    }
    const auto levels = bands_of(frames);
    EXPECT_NEAR(*std::max_element(levels.begin(), levels.end()), 0, 0.01);
}

TEST(Spectrum, OneChannelAloneIsThreeDecibelsLess) {
    for (const auto& peaks : {std::array{1.0, 0.0}, std::array{0.0, 1.0}}) {
        const auto levels = bands_of(tone(3000, peaks, Spectrum::window_frames));
        EXPECT_NEAR(*std::max_element(levels.begin(), levels.end()), -3.01, 0.01);
    }
}

/// The level of a line of the transform, by its definition.
double line_by_hand(const std::vector<float>& frames, std::size_t line) {
    constexpr auto size = static_cast<double>(Spectrum::window_frames);
    double power = 0;
    for (std::size_t channel = 0; channel < 2; ++channel) {
        std::complex<double> sum;
        for (std::size_t frame = 0; frame < Spectrum::window_frames; ++frame) {
            const double turn = 2 * std::numbers::pi * static_cast<double>(frame) / size;
            sum += (0.5 - 0.5 * std::cos(turn)) * frames[2 * frame + channel] *
                   std::polar(1.0, -turn * static_cast<double>(line));
        }
        power += 2 * std::norm(sum);
    }
    return std::max(10 * std::log10(power / (size * size / 4)), -100.0);
}

TEST(Spectrum, OfAnySoundIsTheGreatestLineOfEachBand) {
    std::vector<float> frames;
    std::minstd_rand noise{1};
    for (std::size_t sample = 0; sample < 2 * Spectrum::window_frames; ++sample)
        frames.push_back(static_cast<float>(noise() % 20'001) / 10'000 - 1);
    const Spectrum::Range range{.lowest = 1000, .highest = 24'000};
    Spectrum spectrum{6, range};
    const auto levels = spectrum.bands_of(frames);
    for (std::size_t band = 0; band < 6; ++band) {
        const auto edge = [](std::size_t number) {
            return 1000 * std::pow(24.0, static_cast<double>(number) / 6) / (48000.0 / 2048);
        };
        double greatest = -100;
        for (auto line = static_cast<std::size_t>(std::ceil(edge(band))); static_cast<double>(line) < edge(band + 1);
             ++line)
            greatest = std::max(greatest, line_by_hand(frames, line));
        EXPECT_NEAR(levels[band], greatest, 0.01) << band;
    }
}

TEST(Spectrum, ABandNarrowerThanTheLinesAreApartIsReadBetweenItsNeighbours) {
    Spectrum spectrum{1, {.lowest = 3004, .highest = 3006}};
    const auto frames = tone(3011, {0.5, 0.25}, Spectrum::window_frames);
    const double place = std::sqrt(3004.0 * 3006.0) / (48000.0 / 2048) - 128;
    const double expected = std::lerp(line_by_hand(frames, 128), line_by_hand(frames, 129), place);
    EXPECT_NEAR(spectrum.bands_of(frames)[0], expected, 0.01);
}

TEST(Spectrum, HearsWhatIsMissingAtTheBeginningAsSilence) {
    const auto newest = tone(3000, {1, 1}, 700);
    std::vector<float> padded(2 * (Spectrum::window_frames - 700));
    padded.insert(padded.end(), newest.begin(), newest.end());
    Spectrum spectrum{bands};
    (void)spectrum.bands_of(tone(500, {1, 1}, Spectrum::window_frames));
    const auto levels = spectrum.bands_of(newest);
    EXPECT_EQ(std::vector<float>(levels.begin(), levels.end()), bands_of(padded));
}

TEST(Spectrum, GoesUpToHalfTheRateAndNoFurther) {
    Spectrum spectrum{2, {.lowest = 23'000, .highest = 40'000}};
    std::vector<float> highest;
    for (std::size_t frame = 0; frame < Spectrum::window_frames; ++frame)
        highest.insert(highest.end(), 2, frame % 2 == 0 ? 0.5F : -0.5F);
    EXPECT_NEAR(spectrum.bands_of(highest)[1], line_by_hand(highest, 1023), 0.01);
}

TEST(Spectrum, SilenceIsTheFloor) {
    EXPECT_EQ(bands_of(std::vector<float>(2 * Spectrum::window_frames)), std::vector<float>(bands, Spectrum::floor));
    EXPECT_EQ(bands_of({}), std::vector<float>(bands, Spectrum::floor));
}

TEST(Spectrum, ShowsTheNewestOfMoreFrames) {
    auto frames = tone(3000, {1, 1}, Spectrum::window_frames);
    frames.insert(frames.end(), 2 * Spectrum::window_frames, 0.0F);
    EXPECT_EQ(bands_of(frames), std::vector<float>(bands, Spectrum::floor));
}

// Lines are 23.4 Hz apart: line 2 is at 46.9 Hz, line 3 at 70.3 Hz.
TEST(Spectrum, BandsBetweenTwoLinesFallFromOneToTheOther) {
    Spectrum spectrum{8, {.lowest = 48, .highest = 69}};
    const auto levels = spectrum.bands_of(tone(2 * 48000.0 / Spectrum::window_frames, {1, 1}, Spectrum::window_frames));
    EXPECT_TRUE(std::ranges::is_sorted(levels, std::ranges::greater{}));
    EXPECT_GT(levels.front(), levels.back());
}

TEST(Spectrum, BandsGoFromTheLowestToTheHighest) {
    const Spectrum spectrum{2, {.lowest = 100, .highest = 10000}};
    EXPECT_NEAR(spectrum.centre(0), 316.2, 0.1);
    EXPECT_NEAR(spectrum.centre(1), 3162.3, 0.1);
}

} // namespace
} // namespace sonarelle
