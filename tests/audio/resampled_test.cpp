// Sound of every rate at the programme's 48 kHz.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "memory_file.h"
#include "sound_fixture.h"

namespace sonarelle {
namespace {

constexpr std::array<double, 2> hertz{441.0, 1000.0};
constexpr double peak = 0.5;

double sine(std::size_t channel, double seconds) {
    return peak * std::sin(2 * std::numbers::pi * hertz[channel] * seconds);
}

/// A sine on each channel, in floats.
std::string wav(int rate, std::size_t channels, double seconds) {
    std::string sound;
    for (int sample = 0; sample < std::lrint(seconds * rate); ++sample)
        for (std::size_t channel = 0; channel < channels; ++channel) {
            const auto value = static_cast<float>(sine(channel, static_cast<double>(sample) / rate));
            sound.append(reinterpret_cast<const char*>(&value), sizeof value);
        }
    const auto hz = static_cast<std::uint64_t>(rate);
    return "RIFF" + little_endian(36 + sound.size(), 4) + "WAVEfmt " + little_endian(16, 4) + little_endian(3, 2) +
           little_endian(channels, 2) + little_endian(hz, 4) + little_endian(hz * channels * 4, 4) +
           little_endian(channels * 4, 2) + little_endian(32, 2) + "data" + little_endian(sound.size(), 4) + sound;
}

std::unique_ptr<Decoder> decoder_of_bytes(const std::string& bytes) {
    return std::make_unique<Decoder>(open_sample_source(std::make_unique<MemoryFile>(bytes), "a.wav"));
}

std::vector<float> rest_of(Decoder& decoder, std::size_t piece = 1000) {
    std::vector<float> frames;
    for (std::vector<float> next(2 * piece);;) {
        const std::size_t count = decoder.read(next);
        frames.insert(frames.end(), next.begin(), next.begin() + std::ptrdiff_t(2 * count));
        if (count == 0)
            return frames;
    }
}

// 44,099 Hz has no ratio to 48 kHz in small numbers.
constexpr std::array rates{8000, 11025, 22050, 32000, 44099, 44100, 47250, 48000, 88200, 96000, 192000};

TEST(Resampled, SoundsTheSameAtEveryRateAndLastsAsLong) {
    for (const int rate : rates)
        for (const std::size_t channels : {1U, 2U}) {
            const auto decoder = decoder_of_bytes(wav(rate, channels, 0.5));
            EXPECT_DOUBLE_EQ(decoder->duration(), static_cast<double>(std::lrint(0.5 * rate)) / rate);
            const auto heard = rest_of(*decoder);
            EXPECT_NEAR(static_cast<double>(heard.size()) / 2, 24'000, 2) << rate;
            for (std::size_t frame = 500; frame < 23'500; ++frame)
                for (const std::size_t side : {0U, 1U})
                    ASSERT_NEAR(heard[2 * frame + side], sine(side % channels, static_cast<double>(frame) / 48'000),
                                0.002)
                        << rate << " Hz, frame " << frame;
        }
}

TEST(Resampled, IsTheSameFromEveryFrameOn) {
    for (const int rate : rates) {
        const std::string bytes = wav(rate, 2, 0.5);
        const auto whole = rest_of(*decoder_of_bytes(bytes));
        const auto decoder = decoder_of_bytes(bytes);
        for (const std::int64_t from : {20'000, 1, 23'990, 0, 7'777, 300}) {
            decoder->seek(Frames{from});
            EXPECT_EQ(decoder->position(), Frames{from});
            const auto rest = rest_of(*decoder, 333);
            ASSERT_EQ(rest.size(), whole.size() - static_cast<std::size_t>(2 * from)) << rate << " from " << from;
            EXPECT_TRUE(std::equal(rest.begin(), rest.end(), whole.begin() + 2 * from)) << rate << " from " << from;
            EXPECT_EQ(2 * decoder->position().count(), std::ssize(whole));
        }
    }
}

TEST(Resampled, GoesOnWhereItStandsWhenThatIsSought) {
    const std::string bytes = wav(44100, 2, 0.5);
    const auto whole = rest_of(*decoder_of_bytes(bytes));
    const auto decoder = decoder_of_bytes(bytes);
    std::vector<float> piece(2 * 777);
    for (std::int64_t frame = 0; frame < 20 * 777; frame += 777) {
        decoder->seek(Frames{frame});
        ASSERT_EQ(decoder->read(piece), 777U);
        ASSERT_TRUE(std::equal(piece.begin(), piece.end(), whole.begin() + 2 * frame)) << frame;
    }
}

TEST(Resampled, BehindItsEndIsNothing) {
    for (const int rate : {44100, 48000}) {
        const auto decoder = decoder_of_bytes(wav(rate, 2, 0.1));
        for (const std::int64_t behind : {4900, 100'000}) {
            decoder->seek(Frames{behind});
            EXPECT_TRUE(rest_of(*decoder).empty()) << rate;
        }
    }
}

} // namespace
} // namespace sonarelle
