// How seldom files are opened, measured and read, and when they are closed.
#include <gtest/gtest.h>

#include <algorithm>

#include "platform/audio/file_opener.h"
#include "sound_fixture.h"
#include "watched_files.h"

namespace sonarelle {
namespace {

class OpenedFiles : public testing::Test {
protected:
    std::shared_ptr<WatchedFiles> files = std::make_shared<WatchedFiles>();
    SoundFixture bench{files};
    FileOpener opener{files, DiskPatience{}};
};

TEST_F(OpenedFiles, HaveTheirFirstFiftyMillisecondsReady) {
    const auto path = bench.folder.counting_wav("a.wav", 1);
    const PreparedFile file = opener.open(path);
    EXPECT_EQ(file.path, path);
    EXPECT_EQ(file.facts, MachineFiles{}.facts(path));
    EXPECT_EQ(file.seconds, 1);
    ASSERT_EQ(file.opening.size(), 2U * 2400);
    for (std::int64_t frame = 0; frame < 2400; ++frame)
        ASSERT_EQ(file.opening[static_cast<std::size_t>(2 * frame)], counted(frame));
    EXPECT_EQ(file.decoder->position(), Frames{2400});
}

TEST_F(OpenedFiles, HaveAllOfAShorterOneReady) {
    EXPECT_EQ(opener.open(bench.folder.counting_wav("a.wav", 0.02)).opening.size(), 2U * 960);
    const auto film = bench.folder.encoded("film.mpg", 1, "-f lavfi -i testsrc=d=1:s=64x48 -map 1:v");
    EXPECT_TRUE(opener.open(film).opening.empty());
}

TEST_F(OpenedFiles, AreMeasuredOnceWhileTheyAreTheSame) {
    const auto path = bench.folder.encoded("a.mp3", 60, "-b:a 128k -write_xing 0");
    const double seconds = opener.open(path).seconds;
    const std::size_t to_measure = std::exchange(files->reads, {}).size();
    EXPECT_EQ(opener.open(path).seconds, seconds);
    EXPECT_LT(files->reads.size(), to_measure / 2) << "the first is read alone";
    bench.folder.encoded("a.mp3", 30, "-b:a 128k -write_xing 0");
    EXPECT_NEAR(opener.open(path).seconds, 30, 0.1);
}

TEST_F(OpenedFiles, AreGivenBackAsTheyWere) {
    const auto path = bench.folder.counting_wav("a.wav", 1);
    opener.keep(opener.open(path));
    const PreparedFile again = opener.open(path);
    EXPECT_EQ(files->opened, 1);
    EXPECT_EQ(again.seconds, 1);
    EXPECT_EQ(again.opening.size(), 2U * 2400);
}

TEST_F(OpenedFiles, AreClosedOnceTheirGraphsAreGone) {
    auto graph = bench.graph(bench.folder.counting_wav("a.wav", 20));
    graph->Run();
    bench.run_for(seconds(1));
    EXPECT_EQ(files->open_now, 1);
    graph.reset();
    bench.run_for(seconds(1));
    EXPECT_EQ(files->open_now, 0);
}

TEST_F(OpenedFiles, AreReadNoFurtherThanIsHeard) {
    auto graph = bench.graph(bench.folder.counting_wav("a.wav", 20));
    graph->Run();
    bench.run_for(seconds(2));
    const std::int64_t second = 48000 * 4;
    EXPECT_GE(files->reads.back(), 2 * second - 4 * 4096);
    EXPECT_LT(files->reads.back(), 3 * second);
}

TEST_F(OpenedFiles, AreNotReadAgainBehindAPause) {
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 20));
    for (int pause = 0; pause < 4; ++pause) {
        graph->Run();
        bench.run_for(milliseconds(700));
        graph->Pause();
        bench.run_for(milliseconds(300));
    }
    const auto sound = std::ranges::find_if(files->reads, [](std::int64_t at) { return at > 4 * 4096; });
    EXPECT_GT(files->reads.end() - sound, 10);
    EXPECT_TRUE(std::is_sorted(sound, files->reads.end(), std::less_equal{}));
}

} // namespace
} // namespace sonarelle
