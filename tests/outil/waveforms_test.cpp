// Waveforms of the station's files, read behind its back.
#include "app/common/waveforms.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <thread>

#include "support/private_folder.h"

namespace sonarelle::test {

namespace {

/// 16 bits, one channel, 8000 samples a second.
std::string wav_of(std::int16_t sample, std::size_t samples) {
    const auto number = [](std::uint32_t value, int bytes) {
        std::string text;
        for (int byte = 0; byte < bytes; ++byte)
            text += static_cast<char>(value >> 8 * byte);
        return text;
    };
    std::string data;
    for (std::size_t i = 0; i < samples; ++i)
        data += number(static_cast<std::uint16_t>(sample), 2);
    const auto size = static_cast<std::uint32_t>(data.size());
    return "RIFF" + number(36 + size, 4) + "WAVEfmt " + number(16, 4) + number(1, 2) + number(1, 2) + number(8000, 4) +
           number(16000, 4) + number(2, 2) + number(16, 2) + "data" + number(size, 4) + data;
}

class WaveformsBehind : public testing::Test {
protected:
    WaveformsBehind() { drives_.set("M", folder.path()); }

    [[nodiscard]] Waveforms waveforms() {
        return Waveforms{drives_, folder.path("cache/ondes"), std::chrono::milliseconds{10}};
    }
    static bool eventually(const std::function<bool()>& so) {
        for (int i = 0; i < 1000 && !so(); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds{10});
        return so();
    }
    static int loudness(Waveforms& waveforms, const std::string& path) {
        const auto waveform = waveforms.of(path);
        return waveform ? waveform->peak_between(0, 1) : -1;
    }

    PrivateFolder folder;

private:
    DriveTable drives_;
};

} // namespace

TEST_F(WaveformsBehind, ComeSomeTimeAfterTheyWereAskedFor) {
    folder.put("titre.wav", wav_of(16384, 8000));
    Waveforms files = waveforms();
    EXPECT_TRUE(eventually([&] { return loudness(files, "M:\\titre.wav") == 128; }));
    EXPECT_NEAR(files.of("M:\\titre.wav")->seconds(), 1, 0.04);
}

TEST_F(WaveformsBehind, AreNoneOfAFileThatCantBeRead) {
    folder.put("note.wav", "rien");
    folder.put("titre.wav", wav_of(16384, 8000));
    Waveforms files = waveforms();
    EXPECT_EQ(files.of("M:\\note.wav"), nullptr);
    EXPECT_EQ(files.of("M:\\absent.wav"), nullptr);
    ASSERT_TRUE(eventually([&] { return files.of("M:\\titre.wav") != nullptr; }));
    EXPECT_EQ(files.of("M:\\note.wav"), nullptr);
    EXPECT_EQ(files.of("M:\\absent.wav"), nullptr);
}

TEST_F(WaveformsBehind, FollowAFileThatAnEditorHasChanged) {
    folder.put("titre.wav", wav_of(16384, 8000));
    Waveforms files = waveforms();
    ASSERT_TRUE(eventually([&] { return loudness(files, "M:\\titre.wav") == 128; }));
    folder.put("titre.wav", wav_of(8192, 9000));
    EXPECT_TRUE(eventually([&] { return loudness(files, "M:\\titre.wav") == 64; }));
}

TEST_F(WaveformsBehind, AreTakenFromTheCacheInTheNextRun) {
    folder.put("titre.wav", wav_of(16384, 8000));
    {
        Waveforms files = waveforms();
        ASSERT_TRUE(eventually([&] { return files.of("M:\\titre.wav") != nullptr; }));
    }
    EXPECT_EQ(folder.names("cache/ondes").size(), 1U);
    Waveforms files = waveforms();
    EXPECT_TRUE(eventually([&] { return loudness(files, "M:\\titre.wav") == 128; }));
}

TEST_F(WaveformsBehind, OfManyFilesAllCome) {
    for (int number = 0; number < 10; ++number)
        folder.put(std::to_string(number) + ".wav", wav_of(static_cast<std::int16_t>(1000 * number + 1000), 8000));
    Waveforms files = waveforms();
    for (int number = 0; number < 10; ++number)
        static_cast<void>(files.of("M:\\" + std::to_string(number) + ".wav"));
    for (int number = 0; number < 10; ++number)
        EXPECT_TRUE(eventually([&] { return files.of("M:\\" + std::to_string(number) + ".wav") != nullptr; }));
}

} // namespace sonarelle::test
