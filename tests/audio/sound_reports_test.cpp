// When a graph's troubles are told, and what is told of them.
#include <gtest/gtest.h>

#include "mpeg_file_fixture.h"
#include "sound_fixture.h"

namespace sonarelle {
namespace {

/// A disk on which every file has the same bytes.
class OneFile final : public SoundFiles {
public:
    explicit OneFile(std::string bytes)
        : bytes_{std::move(bytes)} {}
    FileFacts facts(const std::string&) override {
        return {.size = static_cast<std::int64_t>(bytes_.size()), .modified = 1};
    }
    std::unique_ptr<RecordFile> open(const std::string&) override { return std::make_unique<MemoryFile>(bytes_); }

private:
    std::string bytes_;
};

TEST(SoundReports, TellDamagedPlacesOnceForEachTrouble) {
    const std::string sound = silent_frames(100) + "xx" + silent_frames(3) + "xx" + silent_frames(300) + "xx";
    SoundFixture bench{std::make_shared<OneFile>(sound + silent_frames(300))};
    const auto graph = bench.graph("abîmé.mp3");
    graph->Run();
    bench.run_for(seconds(20));
    ASSERT_EQ(bench.reports.size(), 2U);
    for (const auto& [report, breaks] : {std::pair{bench.reports[0], 2}, {bench.reports[1], 1}}) {
        EXPECT_EQ(report.path, "abîmé.mp3");
        EXPECT_EQ(report.breaks, breaks);
        EXPECT_EQ(report.starved, Frames{});
    }
}

/// A graph whose decoder does nothing unless the test says so.
class Starved : public testing::Test {
protected:
    Starved() {
        graph->Run();
        bench.media.feed();
        render(ready);
        bench.media.housekeep();
    }
    void render(std::int64_t frames) {
        std::vector<float> block(static_cast<std::size_t>(2 * frames));
        bench.bus.render(block.data(), block.size() / 2);
    }
    /// The frames that are told after so many more without a decoder.
    Frames told_after(std::int64_t frames) {
        render(frames);
        bench.reports.clear();
        bench.media.housekeep();
        EXPECT_LE(bench.reports.size(), 1U);
        return bench.reports.empty() ? Frames{} : bench.reports[0].starved;
    }

    static constexpr std::int64_t ready = 16'384;
    SoundFixture bench;
    std::shared_ptr<MediaGraph> graph = bench.graph(bench.folder.counting_wav("a.wav", 20));
};

TEST_F(Starved, IsNotToldBeforeItIs) {
    EXPECT_TRUE(bench.reports.empty());
}

TEST_F(Starved, IsToldBySecondsWhileItLasts) {
    EXPECT_EQ(told_after(47'999), Frames{});
    EXPECT_EQ(told_after(1), seconds(1));
    EXPECT_EQ(told_after(47'000), Frames{});
    EXPECT_EQ(told_after(2000), Frames{49'000});
}

TEST_F(Starved, IsToldOnceItHasBeenOverForATenthOfASecond) {
    EXPECT_EQ(told_after(700), Frames{});
    graph->Pause();
    EXPECT_EQ(told_after(4799), Frames{});
    EXPECT_EQ(told_after(1), Frames{700});
    EXPECT_EQ(told_after(100'000), Frames{});
}

TEST_F(Starved, IsToldThoughItsGraphIsGone) {
    EXPECT_EQ(told_after(700), Frames{});
    graph.reset();
    EXPECT_EQ(told_after(4800), Frames{700});
    EXPECT_EQ(told_after(100'000), Frames{});
}

} // namespace
} // namespace sonarelle
