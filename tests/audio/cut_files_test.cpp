// Files that have lost their end, or announce more than they hold: what counts is the sound that is there.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <fstream>

#include "platform/failure.h"
#include "sound_fixture.h"

namespace sonarelle {
namespace {

using Bytes = std::vector<char>;

Bytes bytes_of(const std::string& path) {
    std::ifstream file{path, std::ios::binary};
    return {std::istreambuf_iterator<char>{file}, {}};
}

void put_big_endian(Bytes& bytes, std::size_t at, std::uint32_t value) {
    for (std::size_t byte = 0; byte < 4; ++byte)
        bytes.at(at + byte) = static_cast<char>(value >> (24 - 8 * byte));
}

std::size_t place_of(const Bytes& bytes, const char* word) {
    const auto found = std::search(bytes.begin(), bytes.end(), word, word + std::strlen(word));
    return static_cast<std::size_t>(found - bytes.begin());
}

double seconds_decoded(const std::string& path) {
    return static_cast<double>(decoded(path).size()) / 2 / static_cast<double>(frame_rate);
}

struct Cut {
    const char* name;
    const char* options;
};

class CutFile : public testing::TestWithParam<std::tuple<Cut, int>> {};

TEST_P(CutFile, HasTheLengthOfWhatIsThereOrIsRefused) {
    const auto& [format, percent] = GetParam();
    const SoundFolder folder;
    Bytes bytes = bytes_of(folder.encoded(format.name, 10, format.options));
    bytes.resize(bytes.size() * static_cast<std::size_t>(percent) / 100);
    const std::string path = folder.file(std::string{"cut_"} + format.name, bytes);
    try {
        EXPECT_NEAR(decoder_of(path)->duration(), seconds_decoded(path), 0.06);
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number, FailureNumber::unplayable_file);
        EXPECT_NE(percent, 99) << "nearly all of it is there";
    }
}

INSTANTIATE_TEST_SUITE_P(
    Formats, CutFile,
    testing::Combine(testing::Values(Cut{"cbr.mp3", "-b:a 128k"}, Cut{"vbr.mp3", "-q:a 2"},
                                     Cut{"without_header.mp3", "-b:a 128k -write_xing 0"}, Cut{"lossless.flac", ""},
                                     Cut{"open.ogg", "-c:a libvorbis"}, Cut{"new.opus", "-c:a libopus"},
                                     Cut{"cd.wav", ""}, Cut{"law.wav", "-c:a pcm_alaw"}, Cut{"two.wma", "-b:a 128k"},
                                     Cut{"streamed.m4a", "-c:a aac -movflags faststart"},
                                     Cut{"sound.avi", "-c:a libmp3lame"},
                                     Cut{"film.avi", "-f lavfi -i testsrc=d=10:s=64x48 -c:a libmp3lame"},
                                     Cut{"film.mp4", "-f lavfi -i testsrc=d=10:s=64x48 -c:v mpeg4 -c:a aac "
                                                     "-movflags faststart"},
                                     Cut{"apple.aiff", ""}, Cut{"sound.mpg", "-c:a mp2"},
                                     Cut{"sound.mka", "-c:a libvorbis"}, Cut{"sound.aac", "-c:a aac"}),
                     testing::Values(1, 10, 50, 99)),
    [](const auto& tested) {
        std::string name = std::get<0>(tested.param).name;
        std::ranges::replace(name, '.', '_');
        return name + "_" + std::to_string(std::get<1>(tested.param));
    });

// Frames of 128 kbit/s behind one with a length header of the other kind.
Bytes with_vbri(Bytes frames, std::uint32_t count) {
    const std::size_t frame_bytes = 417;
    const std::size_t vbri = 4 + 32;
    Bytes file(frame_bytes);
    const std::size_t first = place_of(frames, "\xFF\xFB");
    std::copy_n(frames.begin() + static_cast<std::ptrdiff_t>(first), 4, file.begin());
    file[2] = static_cast<char>(file[2] & ~2); // no padding
    std::memcpy(&file[vbri], "VBRI", 4);
    put_big_endian(file, vbri + 10, static_cast<std::uint32_t>(frame_bytes + frames.size() - first));
    put_big_endian(file, vbri + 14, count);
    file.insert(file.end(), frames.begin() + static_cast<std::ptrdiff_t>(first), frames.end());
    return file;
}

class LyingFile : public testing::Test {
protected:
    void expect_length(const Bytes& bytes, double seconds) const {
        const std::string path = folder.file("lying.mp3", bytes);
        EXPECT_NEAR(decoder_of(path)->duration(), seconds, 0.06);
        EXPECT_NEAR(seconds_decoded(path), seconds, 0.06);
    }
    static constexpr std::uint32_t far_too_many = 72000; // frames: half an hour

    SoundFolder folder;
    Bytes cbr = bytes_of(folder.encoded("cbr.mp3", 20, "-b:a 128k"));
    std::size_t info = place_of(cbr, "Info");
};

TEST_F(LyingFile, WithAVbriHeaderThatFitsHasItsLength) {
    const Bytes plain = bytes_of(folder.encoded("plain.mp3", 20, "-b:a 128k -write_xing 0"));
    expect_length(with_vbri(plain, 768), 20.06);
}

TEST_F(LyingFile, CutBehindAVbriHeaderHasTheLengthOfItsSound) {
    Bytes bytes = with_vbri(bytes_of(folder.encoded("plain.mp3", 20, "-b:a 128k -write_xing 0")), 768);
    bytes.resize(bytes.size() / 2);
    expect_length(bytes, 10.03);
}

TEST_F(LyingFile, WithMoreFramesInItsHeaderThanItsBytesCanHoldHasTheLengthOfItsSound) {
    put_big_endian(cbr, info + 8, far_too_many);
    expect_length(cbr, 20);
}

TEST_F(LyingFile, WithFramesButNoBytesInItsHeaderIsWalked) {
    put_big_endian(cbr, info + 4, 1);
    put_big_endian(cbr, info + 8, 1500);
    expect_length(cbr, 20.06);
}

TEST_F(LyingFile, CutKeepsTheSoundOfTheLastFrameThatIsThere) {
    const std::size_t half = cbr.size() / 2;
    std::memcpy(&cbr.at(place_of(cbr, "Lavc")), "LAME", 4);
    cbr[place_of(cbr, "LAME") + 22] = '\x0F'; // of the whole: more than three frames are padding
    cbr[place_of(cbr, "LAME") + 23] = '\xFF';
    cbr.resize(half);
    expect_length(cbr, 9.98);
}

TEST_F(LyingFile, AFlacThatAnnouncesFarMoreHasTheLengthOfItsSound) {
    Bytes flac = bytes_of(folder.encoded("a.flac", 5, ""));
    put_big_endian(flac, 22, 44100 * 1887);
    expect_length(flac, 5);
}

TEST_F(LyingFile, AWmaThatAnnouncesFarMoreHasTheLengthOfItsSound) {
    Bytes wma = bytes_of(folder.encoded("a.wma", 5, "-b:a 128k"));
    const std::size_t properties = place_of(wma, "\xA1\xDC\xAB\x8C\x47\xA9\xCF\x11");
    const std::uint64_t announced = 1887ULL * 10'000'000;
    std::memcpy(&wma.at(properties + 64), &announced, sizeof announced);
    expect_length(wma, 5);
}

TEST(Decoder, GoesOnWhereItStoodOnceItsLengthWasMeasured) {
    const SoundFolder folder;
    Bytes flac = bytes_of(folder.encoded("whole.flac", 5, ""));
    flac.resize(flac.size() / 2);
    for (const std::string& path : {folder.encoded("a.aac", 5, "-c:a aac"), folder.file("cut.flac", flac)}) {
        const auto whole = decoded(path);
        const auto decoder = decoder_of(path);
        std::vector<float> piece(2 * 2400);
        (void)decoder->read(piece);
        (void)decoder->duration();
        ASSERT_EQ(decoder->read(piece), 2400U);
        EXPECT_TRUE(std::equal(piece.begin(), piece.end(), whole.begin() + 2 * 2400)) << path;
    }
}

} // namespace
} // namespace sonarelle
