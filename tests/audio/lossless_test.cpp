// Formats that lose nothing give the samples that were put in.
#include <gtest/gtest.h>

#include <algorithm>

#include "memory_file.h"
#include "sound_fixture.h"

namespace sonarelle {
namespace {

class Lossless : public testing::Test {
protected:
    /// The WAV of counted frames, in another format.
    [[nodiscard]] std::string made_of(const std::string& wav, const std::string& name,
                                      const std::string& options) const {
        return folder.encoded(name, 0.1, "-i '" + wav + "' -map 1:a " + options);
    }

    SoundFolder folder;
    const std::string counted_wav = folder.counting_wav("count.wav", 4);
};

struct Format {
    const char* name;
    const char* options;
};

constexpr std::array formats{Format{"a.flac", ""},
                             Format{"a.flac", "-sample_fmt s32"},
                             Format{"a.aiff", ""},
                             Format{"a.au", "-c:a pcm_s24be"},
                             Format{"a.m4a", "-c:a alac"},
                             Format{"a.wv", ""},
                             Format{"a.mka", "-c:a pcm_s16le"},
                             Format{"a.mka", "-c:a pcm_f64le"},
                             Format{"a.avi", "-c:a pcm_s16le"},
                             Format{"a.w64", "-c:a pcm_s32le"}};

TEST_F(Lossless, GivesEverySampleOfBothChannels) {
    const auto expected = decoded(counted_wav);
    for (const auto& [name, options] : formats) {
        const auto path = made_of(counted_wav, name, options);
        EXPECT_EQ(decoded(path), expected) << name << " " << options;
        EXPECT_DOUBLE_EQ(decoder_of(path)->duration(), 4) << name << " " << options;
        EXPECT_TRUE(decoder_of(path)->has_sound());
        EXPECT_FALSE(decoder_of(path)->has_pictures());
    }
}

TEST_F(Lossless, GivesAfterASeekTheSampleOfThePlace) {
    for (const auto& [name, options] : formats) {
        const auto decoder = decoder_of(made_of(counted_wav, name, options));
        std::vector<float> piece(2 * 5000);
        for (const std::int64_t frame : {150'000, 3, 100'001, 100'002, 191'000, 0}) {
            decoder->seek(Frames{frame});
            ASSERT_EQ(decoder->read(piece), std::min<std::size_t>(5000, 192'000 - static_cast<std::size_t>(frame)));
            EXPECT_EQ(piece[0], counted(frame)) << name << " from " << frame;
            EXPECT_EQ(piece[2 * 999], counted(frame + 999)) << name << " from " << frame;
        }
        EXPECT_EQ(decoder->breaks(), 0) << name;
    }
}

TEST_F(Lossless, GivesOneChannelOnBothSides) {
    const auto stereo = decoded(counted_wav);
    for (const char* name : {"a.flac", "a.wav", "a.aiff", "a.wv"}) {
        const auto path = made_of(counted_wav, name, "-af 'pan=mono|c0=c0'");
        EXPECT_EQ(open_sample_source(MachineFiles{}.open(path), path)->channels(), 1) << name;
        const auto mono = decoded(path);
        ASSERT_EQ(mono.size(), stereo.size());
        for (std::size_t frame = 0; frame < mono.size() / 2; ++frame) {
            ASSERT_EQ(mono[2 * frame], stereo[2 * frame]) << name;
            ASSERT_EQ(mono[2 * frame + 1], stereo[2 * frame]) << name;
        }
    }
}

TEST(PlainSound, OfThreeChannelsWithoutNamesGivesTheFirstTwo) {
    std::string sound;
    for (int frame = 0; frame < 48'000; ++frame)
        for (const int step : {1, 2, 3})
            sound += little_endian(static_cast<std::uint64_t>(frame * step % 10'000), 2);
    const SoundFolder folder;
    const auto heard = decoded(folder.file(
        "a.wav", "RIFF" + little_endian(36 + sound.size(), 4) + "WAVEfmt " + little_endian(16, 4) +
                     little_endian(1, 2) + little_endian(3, 2) + little_endian(48'000, 4) + little_endian(288'000, 4) +
                     little_endian(6, 2) + little_endian(16, 2) + "data" + little_endian(sound.size(), 4) + sound));
    ASSERT_EQ(heard.size(), 2U * 48'000);
    for (int frame = 0; frame < 48'000; ++frame)
        for (const int side : {0, 1})
            ASSERT_NEAR(heard[static_cast<std::size_t>(2 * frame + side)],
                        static_cast<float>(frame * (side + 1) % 10'000) / 32'768, 1e-6)
                << frame;
}

} // namespace
} // namespace sonarelle
