// Formats that lose nothing give the samples that were put in.
#include <gtest/gtest.h>

#include <algorithm>

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

} // namespace
} // namespace sonarelle
