// What FFmpeg finds wrong with a file is thrown or counted; standard error is the station's own.
#include <gtest/gtest.h>

#include <fstream>

#include "mpeg_file_fixture.h"
#include "sound_fixture.h"

namespace sonarelle {
namespace {

TEST(QuietCodecs, SayNothingOfADamagedMp3) {
    std::string bytes = silent_frames(10);
    bytes.replace(5 * silent_bytes + 4, 32, 32, '\xFF');
    const SoundFolder folder;
    const auto path = folder.file("a.mp3", bytes);
    testing::internal::CaptureStderr();
    static_cast<void>(decoded(path));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(QuietCodecs, SayNothingOfADamagedFlac) {
    const SoundFolder folder;
    const auto path = folder.encoded("a.flac", 4, "");
    std::fstream{path, std::ios::binary | std::ios::in | std::ios::out}.seekp(100'000) << std::string(4000, 'x');
    testing::internal::CaptureStderr();
    static_cast<void>(decoded(path));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

} // namespace
} // namespace sonarelle
