// The shape of a file's sound: columns over its whole length.
#include "platform/audio/waveform_reading.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numeric>

#include "sound_fixture.h"

namespace sonarelle {

namespace {

constexpr int rate = 8000;

/// Adds `samples` samples of one height, both channels of them where no other is said.
void add(WaveformBuilder& builder, std::size_t samples, float left, std::optional<float> right = {}) {
    const std::vector<float> first(samples, left);
    const std::vector<float> second(samples, right.value_or(left));
    builder.add({{first.data(), second.data()}, samples});
}

[[nodiscard]] Waveform waveform_of(const std::string& path) {
    const auto source = open_sample_source(MachineFiles{}.open(path), path);
    return read_waveform(*source, std::atomic<bool>{false}).value();
}

} // namespace

TEST(Waveform, ColumnHoldsTheGreatestSampleOfItsStretch) {
    WaveformBuilder builder{rate};
    add(builder, 255, 0.1F);
    add(builder, 1, -0.8F);
    add(builder, 256, 0.4F);
    EXPECT_EQ(builder.finish().peaks, (std::vector<std::uint8_t>{204, 102}));
    EXPECT_DOUBLE_EQ(builder.finish().column_seconds, 256.0 / rate);
}

TEST(Waveform, LouderChannelCounts) {
    WaveformBuilder builder{rate};
    add(builder, 256, 0.2F, 0.6F);
    add(builder, 256, 0.8F, 0.0F);
    EXPECT_EQ(builder.finish().peaks, (std::vector<std::uint8_t>{153, 204}));
}

TEST(Waveform, SoundBeyondFullScaleIsFull) {
    WaveformBuilder builder{rate};
    add(builder, 256, 1.7F);
    EXPECT_EQ(builder.finish().peaks, std::vector<std::uint8_t>{255});
}

TEST(Waveform, DamagedSamplesAreNoSound) {
    WaveformBuilder builder{rate};
    add(builder, 256, std::numeric_limits<float>::infinity());
    add(builder, 256, 1e30F);
    EXPECT_EQ(builder.finish().peaks, (std::vector<std::uint8_t>{0, 0}));
}

TEST(Waveform, LastColumnMayBeShort) {
    WaveformBuilder builder{rate};
    add(builder, 256, 0.4F);
    add(builder, 10, 1.0F);
    EXPECT_EQ(builder.finish().peaks, (std::vector<std::uint8_t>{102, 255}));
}

TEST(Waveform, LongSoundHasLongerColumnsInsteadOfMore) {
    WaveformBuilder builder{rate};
    for (int column = 0; column < 5000; ++column)
        add(builder, 256, column % 2 == 0 ? 1.0F : 0.2F);
    const Waveform waveform = builder.finish();
    EXPECT_EQ(waveform.peaks, std::vector<std::uint8_t>(2500, 255)); // each two became one, of the greater sample
    EXPECT_DOUBLE_EQ(waveform.column_seconds, 512.0 / rate);
}

TEST(Waveform, DayOfSoundKeepsItsPlaces) {
    WaveformBuilder builder{rate};
    const std::vector<float> silence(rate, 0.0F);
    const std::vector<float> loud(rate, 1.0F);
    constexpr int day = 24 * 3600;
    for (int second = 0; second < day; ++second) {
        const float* samples = second == day / 3 ? loud.data() : silence.data();
        builder.add({{samples, samples}, silence.size()});
    }
    const Waveform waveform = builder.finish();
    EXPECT_LE(waveform.peaks.size(), WaveformBuilder::most_columns);
    EXPECT_NEAR(waveform.seconds(), day, waveform.column_seconds);
    EXPECT_EQ(waveform.peak_between(day / 3.0, day / 3.0 + 1), 255);
    EXPECT_EQ(std::accumulate(waveform.peaks.begin(), waveform.peaks.end(), 0), 255) << "in one column alone";
}

TEST(Waveform, ComesOutTheSameHoweverTheSamplesCome) {
    WaveformBuilder whole{rate};
    WaveformBuilder pieces{rate};
    std::vector<float> tone(std::size_t{3} * rate);
    for (std::size_t at = 0; at < tone.size(); ++at)
        tone[at] = std::sin(0.001F * static_cast<float>(at * at % 6007));
    whole.add({{tone.data(), tone.data()}, tone.size()});
    for (std::size_t at = 0; at < tone.size(); at += 100)
        pieces.add({{tone.data() + at, tone.data() + at}, std::min<std::size_t>(100, tone.size() - at)});
    EXPECT_EQ(pieces.finish(), whole.finish());
}

TEST(Waveform, OfAFileCoversItsWholeLength) {
    const SoundFolder folder;
    const std::string path = folder.encoded("titre.mp3", 20, "-b:a 128k");
    EXPECT_NEAR(waveform_of(path).seconds(), 20, 0.05);
}

TEST(Waveform, OfAFileShowsWhereItIsQuiet) {
    const SoundFolder folder;
    const std::string path = folder.encoded("titre.wav", 6, R"(-af "volume=0:enable='between(t,2,4)'")");
    const Waveform waveform = waveform_of(path);
    EXPECT_GT(waveform.peak_between(0.5, 1.5), 80);
    EXPECT_EQ(waveform.peak_between(2.5, 3.5), 0);
    EXPECT_GT(waveform.peak_between(4.5, 5.5), 80);
}

TEST(Waveform, ReadingEndsWhenItIsNoLongerWanted) {
    const SoundFolder folder;
    const std::string path = folder.counting_wav("titre.wav", 1);
    const auto source = open_sample_source(MachineFiles{}.open(path), path);
    EXPECT_FALSE(read_waveform(*source, std::atomic<bool>{true}).has_value());
}

TEST(WaveformPlaces, BetweenTwoSecondsAreThoseOfTheirColumns) {
    const Waveform waveform{0.5, {10, 20, 30, 40}};
    EXPECT_EQ(waveform.peak_between(0, 0.4), 10);
    EXPECT_EQ(waveform.peak_between(0.4, 0.6), 20);
    EXPECT_EQ(waveform.peak_between(0, 2), 40);
}

TEST(WaveformPlaces, BeyondTheEndsAreSilent) {
    const Waveform waveform{0.5, {10, 20}};
    EXPECT_EQ(waveform.peak_between(-1, 0), 0);
    EXPECT_EQ(waveform.peak_between(1, 2), 0);
    EXPECT_EQ(waveform.peak_between(0.6, 0.6), 0);
    EXPECT_EQ(Waveform{}.peak_between(0, 1), 0);
}

TEST(WaveformPlaces, ReachingOverAnEndAreThoseThatAreThere) {
    const Waveform waveform{0.5, {10, 20}};
    EXPECT_EQ(waveform.peak_between(-1, 0.2), 10);
    EXPECT_EQ(waveform.peak_between(0.7, 9), 20);
}

} // namespace sonarelle
