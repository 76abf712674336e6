#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "memory_file.h"
#include "platform/audio/wav_file_output.h"
#include "platform/failure.h"
#include "sound_fixture.h"

namespace sonarelle {
namespace {

std::vector<std::int16_t> samples_of(const std::string& path) {
    std::vector<std::int16_t> samples((std::filesystem::file_size(path) - WavHead{}.size()) / 2);
    std::ifstream file{path, std::ios::binary};
    file.seekg(WavHead{}.size());
    file.read(reinterpret_cast<char*>(samples.data()), static_cast<std::streamsize>(2 * samples.size()));
    return samples;
}

std::vector<std::int16_t> written(const std::vector<float>& frames) {
    const SoundFolder folder;
    WavFileOutput output{folder.path("a.wav")};
    output.write(frames);
    output.close();
    return samples_of(folder.path("a.wav"));
}

TEST(WavFileOutput, RoundsEverySampleToTheNearestWholeNumberAndTheEvenOneOfTwo) {
    std::vector<float> frames;
    for (int quarter = -4 * 32767; quarter <= 4 * 32767; ++quarter)
        frames.push_back(static_cast<float>(quarter) / 4 / 32768.0F);
    const auto samples = written(frames);
    ASSERT_EQ(samples.size(), frames.size());
    for (std::size_t sample = 0; sample < frames.size(); ++sample)
        ASSERT_EQ(samples[sample], std::lrint(frames[sample] * 32768.0F)) << frames[sample];
}

TEST(WavFileOutput, CutsWhatIsBeyondFullScale) {
    EXPECT_EQ(written({1.0F, -1.0F, 1.5F, -1.5F, 64.0F, -64.0F}),
              (std::vector<std::int16_t>{32767, -32768, 32767, -32768, 32767, -32768}));
}

TEST(WavFileOutput, CutsWhatIsBarelyBeyondFullScale) {
    for (const float beyond : {1.0F, 32767.5F / 32768.0F, -32768.5F / 32768.0F, -1.0F})
        EXPECT_EQ(written({0.0F, beyond}), (std::vector<std::int16_t>{0, std::int16_t(beyond > 0 ? 32767 : -32768)}));
}

TEST(WavFileOutput, RoundsInABlockOfWhichAnotherSampleIsCut) {
    const auto in_steps = [](float step) { return step / 32768.0F; };
    EXPECT_EQ(written({2.0F, in_steps(0.5F), in_steps(1.5F), in_steps(-0.75F), in_steps(32767.5F), -1.0F}),
              (std::vector<std::int16_t>{32767, 0, 2, -1, 32767, -32768}));
}

TEST(WavFileOutput, HasEverySampleOfBlocksOfAnyLengthInItsPlace) {
    const SoundFolder folder;
    WavFileOutput output{folder.path("a.wav")};
    std::vector<std::int16_t> sent;
    for (std::size_t block = 4; block < 100'000; block *= 3) {
        std::vector<float> frames;
        for (std::size_t sample = 0; sample < block; ++sample) {
            sent.push_back(static_cast<std::int16_t>(sent.size() % 30'011));
            frames.push_back(static_cast<float>(sent.back()) / 32768.0F);
        }
        output.write(frames);
    }
    output.close();
    EXPECT_EQ(samples_of(folder.path("a.wav")), sent);
    EXPECT_EQ(decoded(folder.path("a.wav")).size(), sent.size());
}

TEST(WavFileOutput, TellsThatTheDiskIsFullAtTheLatestWhenItCloses) {
    WavFileOutput output{"/dev/full"};
    ErrorIndicator errors;
    errors.skip([&] {
        output.write(std::vector<float>(2 * 7, 0.25F));
        output.close();
    });
    EXPECT_EQ(errors.number(), FailureNumber::disk_full);
}

TEST(WavFileOutput, TellsThatTheDiskIsFullWhileItWrites) {
    WavFileOutput output{"/dev/full"};
    ErrorIndicator errors;
    errors.skip([&] { output.write(std::vector<float>(2 * 48000, 0.25F)); });
    EXPECT_EQ(errors.number(), FailureNumber::disk_full);
}

TEST(WavFileOutput, TellsAFolderThatIsNotThere) {
    ErrorIndicator errors;
    errors.skip([] { const WavFileOutput output{"/nulle/part/a.wav"}; });
    EXPECT_EQ(errors.number(), FailureNumber::path_access);
}

TEST(WavFileOutput, IsAWholeFileWhenItIsDroppedOrClosedTwice) {
    const SoundFolder folder;
    const auto path = folder.path("a.wav");
    {
        WavFileOutput output{path};
        output.write(std::vector<float>(2 * 100, 0.5F));
    }
    EXPECT_EQ(decoder_of(path)->duration(), 100.0 / 48'000);
    EXPECT_EQ(samples_of(path), std::vector<std::int16_t>(2 * 100, 16'384));
    WavFileOutput output{path};
    output.close();
    output.close();
    EXPECT_EQ(std::filesystem::file_size(path), WavHead{}.size()) << "what was there before is gone";
    std::ifstream file{path, std::ios::binary};
    const std::string bytes{std::istreambuf_iterator<char>{file}, {}};
    EXPECT_EQ(bytes, std::string(wav_head(0).data(), WavHead{}.size()));
}

TEST(WavFileOutput, GoesOnFromBlockToBlock) {
    const SoundFolder folder;
    WavFileOutput output{folder.path("a.wav")};
    const std::vector<float> block(2 * 7, 0.25F);
    output.write(block);
    output.write(block);
    output.close();
    EXPECT_EQ(samples_of(folder.path("a.wav")), std::vector<std::int16_t>(2 * 14, 8192));
    EXPECT_EQ(decoded(folder.path("a.wav")).size(), 2U * 14);
}

// Sparse: nothing of it takes room on the disk.
std::string long_file(const SoundFolder& folder, std::uint64_t data_bytes) {
    const WavHead head = wav_head(data_bytes);
    const std::string path = folder.file("long.wav", head);
    std::filesystem::resize_file(path, head.size() + data_bytes);
    return path;
}

TEST(WavHead, OfMoreThanFourGigabytesTellsTheWholeLength) {
    const SoundFolder folder;
    constexpr std::uint64_t data_bytes = 5ULL * 48000 * 4 * 3600 * 24; // five days
    const auto decoder = decoder_of(long_file(folder, data_bytes));
    EXPECT_DOUBLE_EQ(decoder->duration(), 5.0 * 3600 * 24);
}

TEST(WavHead, OfMoreThanFourGigabytesIsUnderstoodByOthers) {
    const SoundFolder folder;
    const std::string path = long_file(folder, 48000ULL * 4 * 3600 * 10);
    const std::string asked =
        "ffprobe -v error -show_entries format=duration -of csv=p=0 '" + path + "' > '" + folder.path("said") + "'";
    ASSERT_EQ(std::system(asked.c_str()), 0);
    double seconds_said = 0;
    std::ifstream{folder.path("said")} >> seconds_said;
    EXPECT_DOUBLE_EQ(seconds_said, 36000.0);
}

TEST(WavHead, CutRf64HasTheLengthOfWhatItHolds) {
    const SoundFolder folder;
    const std::string path = folder.file("cut.wav", wav_head(48000ULL * 4 * 3600 * 10));
    std::filesystem::resize_file(path, WavHead{}.size() + 48000 * 4 * 3);
    EXPECT_DOUBLE_EQ(decoder_of(path)->duration(), 3.0);
}

std::string text_of(const WavHead& head) {
    return {head.data(), head.size()};
}

// 48 kHz, stereo, 16 bit, and the room of the longer form.
const std::string format = "fmt " + little_endian(16, 4) + little_endian(1, 2) + little_endian(2, 2) +
                           little_endian(48'000, 4) + little_endian(192'000, 4) + little_endian(4, 2) +
                           little_endian(16, 2);

TEST(WavHead, IsAWholeHead) {
    EXPECT_EQ(text_of(wav_head(192'000)), "RIFF" + little_endian(192'072, 4) + "WAVEJUNK" + little_endian(28, 4) +
                                              std::string(28, '\0') + format + "data" + little_endian(192'000, 4));
}

TEST(WavHead, OfMoreThanFourGigabytesIsAWholeLongHead) {
    const std::uint64_t bytes = 48'000ULL * 4 * 3600 * 10;
    const std::string none = little_endian(UINT32_MAX, 4);
    EXPECT_EQ(text_of(wav_head(bytes)), "RF64" + none + "WAVEds64" + little_endian(28, 4) +
                                            little_endian(bytes + 72, 8) + little_endian(bytes, 8) +
                                            little_endian(bytes / 4, 8) + little_endian(0, 4) + format + "data" + none);
}

TEST(WavHead, StaysTheShortOneUpToFourGigabytes) {
    const std::uint64_t most = (UINT32_MAX - 1 - 72) / 4 * 4;
    EXPECT_EQ(std::memcmp(wav_head(most).data(), "RIFF", 4), 0);
    EXPECT_EQ(std::memcmp(wav_head(most + 4).data(), "RF64", 4), 0);
}

} // namespace
} // namespace sonarelle
