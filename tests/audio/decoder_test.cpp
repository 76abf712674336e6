#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <fstream>

#include "platform/failure.h"
#include "sound_fixture.h"

namespace sonarelle {
namespace {

struct Format {
    const char* name;
    const char* options;
    double seconds;  ///< What decoding gives for 12 s of music.
    double accuracy; ///< One frame of the codec.
};

constexpr double mpeg_frame_seconds = 1152.0 / 44100;

class EveryFormat : public testing::TestWithParam<Format> {
protected:
    SoundFolder folder;
    std::string path = folder.encoded(GetParam().name, 12, GetParam().options);
};

TEST_P(EveryFormat, HasTheLengthThatDecodingGives) {
    const double announced = decoder_of(path)->duration();
    const double given = static_cast<double>(decoded(path).size()) / 2 / static_cast<double>(frame_rate);
    EXPECT_NEAR(announced, GetParam().seconds, GetParam().accuracy);
    EXPECT_NEAR(given, announced, GetParam().accuracy);
}

TEST_P(EveryFormat, GivesAfterASeekWhatDecodingFromTheStartHasThere) {
    const auto whole = decoded(path);
    const auto decoder = decoder_of(path);
    std::vector<float> piece(2 * 3000);
    for (const std::int64_t frame : {400'003, 17, 500'000, 123'457, 1, 300'000, 303'000, 0}) {
        decoder->seek(Frames{frame});
        ASSERT_EQ(decoder->read(piece), 3000U) << frame;
        EXPECT_TRUE(std::equal(piece.begin(), piece.end(), whole.begin() + 2 * frame)) << "at frame " << frame;
    }
}

TEST_P(EveryFormat, EndsBehindASeekWhereDecodingFromTheStartDoes) {
    std::vector<float> rest(2 * 48000 * 13);
    const auto decoder = decoder_of(path);
    const std::size_t whole = decoder->read(rest);
    decoder->seek(Frames{400'003});
    EXPECT_EQ(decoder->read(rest), whole - 400'003);
}

TEST_P(EveryFormat, PlaysTheMusicAtFullLength) {
    const auto whole = decoded(path);
    const auto peak_around = [&](std::size_t second) {
        return *std::max_element(whole.begin() + std::ptrdiff_t(second * 96000),
                                 whole.begin() + std::ptrdiff_t(second * 96000 + 9600));
    };
    for (const std::size_t second : {1U, 6U, 11U})
        EXPECT_GT(peak_around(second), 0.32) << second;
}

INSTANTIATE_TEST_SUITE_P(
    Formats, EveryFormat,
    testing::Values(
        Format{"cbr.mp3", "-b:a 128k", 12, mpeg_frame_seconds}, Format{"vbr.mp3", "-q:a 2", 12, mpeg_frame_seconds},
        Format{"cbr_without_header.mp3", "-b:a 128k -write_xing 0", 12.03, mpeg_frame_seconds},
        Format{"vbr_without_header.mp3", "-q:a 2 -write_xing 0", 12.03, mpeg_frame_seconds},
        Format{"mono_22k.mp3", "-ac 1 -ar 22050", 12, mpeg_frame_seconds},
        Format{"tagged.mp3", "-metadata title=T -write_id3v1 1", 12, mpeg_frame_seconds},
        Format{"layer2.mp2", "", 12.02, mpeg_frame_seconds}, Format{"cd.wav", "", 12, 0.00001},
        Format{"mono_8bit.wav", "-ac 1 -c:a pcm_u8", 12, 0.00001},
        Format{"float.wav", "-c:a pcm_f32le -ar 48000", 12, 0.00001},
        Format{"deep.wav", "-c:a pcm_s24le -ar 96000", 12, 0.00001}, Format{"law.wav", "-c:a pcm_alaw", 12, 0.001},
        Format{"two.wma", "", 12, 2048.0 / 44100}, Format{"one.wma", "-c:a wmav1", 12, 2048.0 / 44100},
        Format{"sound.avi", "-c:a libmp3lame", 12.03, mpeg_frame_seconds},
        Format{"sound.mpg", "-c:a mp2", 12.02, mpeg_frame_seconds}, Format{"open.ogg", "-c:a libvorbis", 12, 0.03},
        Format{"lossless.flac", "", 12, 0.001}, Format{"tele.m4a", "-c:a aac", 12, 0.03}),
    [](const auto& tested) {
        std::string name = tested.param.name;
        std::ranges::replace(name, '.', '_');
        return name;
    });

TEST(Decoder, PlaysMonoOnBothSides) {
    const SoundFolder folder;
    const auto whole = decoded(folder.encoded("mono.mp3", 1, "-ac 1"));
    for (std::size_t frame = 0; frame < whole.size() / 2; ++frame)
        ASSERT_EQ(whole[2 * frame], whole[2 * frame + 1]);
}

std::array<float, 2> peaks_of_sides(const std::string& path) {
    std::array<float, 2> peaks{};
    const auto whole = decoded(path);
    for (std::size_t sample = 0; sample < whole.size(); ++sample)
        peaks[sample % 2] = std::max(peaks[sample % 2], std::abs(whole[sample]));
    return peaks;
}

TEST(Decoder, PlaysEachChannelOnItsOwnSide) {
    const SoundFolder folder;
    const std::string left_alone = "-af \"pan=stereo|c0=c0|c1=0*c1\" ";
    for (const char* name : {"a.mp3", "a.mp2", "a.ogg", "a.m4a", "a.flac", "a.wma", "a.wav", "a.aiff"}) {
        const auto [left, right] = peaks_of_sides(folder.encoded(name, 1, left_alone));
        EXPECT_GT(left, 0.3F) << name;
        EXPECT_LT(right, 0.05F) << name;
    }
}

TEST(Decoder, WavOfAnyDepthIsAsLoud) {
    const SoundFolder folder;
    const auto lossless = decoded(folder.encoded("a.flac", 1, ""));
    for (const char* codec : {"pcm_u8", "pcm_s16le", "pcm_s24le", "pcm_s32le", "pcm_f32le", "pcm_f64le"}) {
        const auto wav = decoded(folder.encoded("a.wav", 1, std::string{"-c:a "} + codec));
        ASSERT_EQ(wav.size(), lossless.size()) << codec;
        for (std::size_t sample = 0; sample < wav.size(); ++sample)
            ASSERT_NEAR(wav[sample], lossless[sample], 0.01F) << codec << " at " << sample;
    }
}

TEST(Decoder, PlaysTheMiddleOfSurroundSoundOnBothSides) {
    const SoundFolder folder;
    const auto [left, right] = peaks_of_sides(folder.encoded("a.flac", 1, "-af \"pan=5.1|c2=c0\""));
    EXPECT_GT(left, 0.1F);
    EXPECT_FLOAT_EQ(left, right);
}

TEST(Decoder, PlaysTheLeftOfSurroundSoundOnTheLeft) {
    const SoundFolder folder;
    const auto [left, right] = peaks_of_sides(folder.encoded("a.flac", 1, "-af \"pan=5.1|c0=c0\""));
    EXPECT_GT(left, 0.1F);
    EXPECT_LT(right, 0.001F);
}

TEST(Decoder, DamageThatOnlyTheWarmingUpMeetsIsNoBreak) {
    const SoundFolder folder;
    const auto path = folder.encoded("a.mp3", 8, "-ar 48000 -b:a 128k");
    std::fstream file{path, std::ios::binary | std::ios::in | std::ios::out};
    file.seekp(64'000);
    file.write(std::string(384, 'x').data(), 384);
    file.close();
    std::vector<float> out(2 * 4800);
    const auto decoder = decoder_of(path);
    decoder->seek(milliseconds(4060)); // the damage lies three frames before
    ASSERT_EQ(decoder->read(out), 4800U);
    EXPECT_EQ(decoder->breaks(), 0);
}

TEST(Decoder, WavWhoseWriterCouldNotGoBackLastsAsLongAsItsSound) {
    const SoundFolder folder;
    for (const std::string& size : {std::string(4, '\0'), std::string(4, '\xFF')}) {
        const auto path = folder.counting_wav("a.wav", 1);
        std::fstream file{path, std::ios::binary | std::ios::in | std::ios::out};
        std::string head(100, '\0');
        file.read(head.data(), std::ssize(head));
        file.seekp(static_cast<std::streamoff>(head.find("data")) + 4);
        file.write(size.data(), std::ssize(size));
        file.close();
        EXPECT_DOUBLE_EQ(decoder_of(path)->duration(), 1.0);
    }
}

TEST(Decoder, LongWavWithATextBehindItsSoundLastsAsLongAsItsSound) {
    const SoundFolder folder;
    const auto path = folder.counting_wav("a.wav", 1);
    const auto put = [&](std::streamoff at, const std::string& bytes) {
        std::fstream file{path, std::ios::binary | std::ios::in | std::ios::out};
        file.seekp(at);
        file.write(bytes.data(), std::ssize(bytes));
    };
    const auto number = [](std::uint64_t value) {
        return std::string{reinterpret_cast<const char*>(&value), sizeof value};
    };
    const std::uint64_t data_bytes = 48000 * 4;
    const auto head_bytes = static_cast<std::streamoff>(std::filesystem::file_size(path) - data_bytes);
    put(0, "RF64");
    put(12, "ds64");
    put(20, number(std::filesystem::file_size(path) + 1000) + number(data_bytes) + number(48000));
    put(head_bytes - 4, std::string(4, '\xFF'));
    put(static_cast<std::streamoff>(std::filesystem::file_size(path)),
        "LIST" + number(1000).substr(0, 4) + std::string(1000, 'x'));
    EXPECT_DOUBLE_EQ(decoder_of(path)->duration(), 1.0);
}

TEST(Decoder, SoundThatChangesItsRateIsDamageAndNotPlayedAtAnother) {
    const SoundFolder folder;
    const auto path = folder.encoded("a.aac", 2, "-c:a aac -ar 44100");
    const std::size_t alone = decoded(path).size();
    std::ifstream other{folder.encoded("b.aac", 2, "-c:a aac -ar 22050"), std::ios::binary};
    std::ofstream{path, std::ios::binary | std::ios::app} << other.rdbuf();
    EXPECT_EQ(decoded(path).size(), alone);
}

TEST(Decoder, MeasuringTheLengthCountsNoBreak) {
    const SoundFolder folder;
    const auto path = folder.encoded("a.flac", 12, "");
    std::fstream file{path, std::ios::binary | std::ios::in | std::ios::out};
    file.seekp(400'000);
    file.write(std::string(4000, 'x').data(), 4000);
    file.close();
    std::filesystem::resize_file(path, std::filesystem::file_size(path) * 9 / 10);
    const auto decoder = decoder_of(path);
    (void)decoder->duration();
    EXPECT_EQ(decoder->breaks(), 0);
}

TEST(Decoder, DiskThatFailsIsNoEndOfTheFile) {
    /// A file of which no more than the first bytes can be read.
    struct FailingFile final : RecordFile {
        explicit FailingFile(const std::string& path)
            : file{MachineFiles{}.open(path)} {}
        [[nodiscard]] std::int64_t length() const override { return file->length(); }
        std::size_t read(std::int64_t position, std::span<std::byte> into) override {
            if (fails && position + static_cast<std::int64_t>(into.size()) > length() / 2)
                throw Failure{FailureNumber::device_fault};
            return file->read(position, into);
        }
        std::unique_ptr<RecordFile> file;
        bool fails = false;
    };
    const SoundFolder folder;
    const auto path = folder.encoded("a.wma", 12, "");
    auto file = std::make_unique<FailingFile>(path);
    bool& fails = file->fails;
    Decoder decoder{open_sample_source(std::move(file), path)};
    fails = true;
    std::vector<float> all(2 * 48000 * 13);
    EXPECT_THROW((void)decoder.read(all), Failure);
}

TEST(Decoder, TwoFramesOfAnMp3AreAFile) {
    const SoundFolder folder;
    const auto path = folder.encoded("a.mp3", 1, "-ar 48000 -b:a 128k -write_xing 0 -id3v2_version 0");
    std::filesystem::resize_file(path, 2 * 384);
    EXPECT_DOUBLE_EQ(decoder_of(path)->duration(), 2 * 0.024);
}

TEST(Decoder, GivesThePlainSamplesOfA48KhzWav) {
    const SoundFolder folder;
    const auto whole = decoded(folder.counting_wav("count.wav", 1));
    for (std::int64_t frame = 0; frame < 48000; ++frame)
        ASSERT_EQ(whole[static_cast<std::size_t>(2 * frame)], counted(frame));
}

TEST(Decoder, TellsAFilmFromASong) {
    const SoundFolder folder;
    const auto film = folder.encoded("film.avi", 2, "-f lavfi -i testsrc=d=2:s=64x48 -c:a libmp3lame");
    EXPECT_TRUE(decoder_of(film)->has_pictures());
    EXPECT_FALSE(decoder_of(folder.encoded("song.mp3", 2, ""))->has_pictures());
}

TEST(Decoder, FilmLastsLongerThanItsSound) {
    const SoundFolder folder;
    for (const char* name : {"film.avi", "film.mkv"}) {
        const auto film = folder.encoded(name, 2, "-f lavfi -i testsrc=d=5:s=64x48 -c:a libmp3lame");
        EXPECT_NEAR(decoder_of(film)->duration(), 5, 0.1) << name;
    }
}

TEST(Decoder, KnowsThatASilentFilmHasNoSound) {
    const SoundFolder folder;
    const auto film = folder.encoded("film.mpg", 2, "-f lavfi -i testsrc=d=2:s=64x48 -map 1:v");
    const auto decoder = decoder_of(film);
    EXPECT_FALSE(decoder->has_sound());
    EXPECT_NEAR(decoder->duration(), 2, 0.1);
}

} // namespace
} // namespace sonarelle
