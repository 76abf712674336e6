#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <thread>

#include "live_fixture.h"
#include "platform/failure.h"
#include "sound_fixture.h"

namespace sonarelle {
namespace {

std::vector<char> bytes_of(const std::string& path) {
    std::ifstream file{path, std::ios::binary};
    return {std::istreambuf_iterator<char>{file}, {}};
}

FailureNumber open_failure(SoundFixture& bench, const std::string& path) {
    try {
        (void)bench.graph(path);
        return FailureNumber::none;
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.source, path);
        return failure.number;
    }
}

TEST(BrokenFile, MissingIs53) {
    SoundFixture bench;
    EXPECT_EQ(open_failure(bench, bench.folder.path("nowhere.mp3")), FailureNumber::file_not_found);
}

TEST(BrokenFile, EmptyIsUnplayable) {
    SoundFixture bench;
    EXPECT_EQ(open_failure(bench, bench.folder.file("empty.mp3", {})), FailureNumber::unplayable_file);
}

TEST(BrokenFile, TextNamedMp3IsUnplayable) {
    SoundFixture bench;
    std::string text;
    for (int line = 0; line < 2000; ++line)
        text += "Ceci n'est pas une chanson, mais la ligne " + std::to_string(line) + ".\n";
    EXPECT_EQ(open_failure(bench, bench.folder.file("text.mp3", text)), FailureNumber::unplayable_file);
}

TEST(BrokenFile, AFolderIsUnplayable) {
    SoundFixture bench;
    std::filesystem::create_directory(bench.folder.path("x.mp3"));
    EXPECT_EQ(open_failure(bench, bench.folder.path("x.mp3")), FailureNumber::unplayable_file);
}

TEST(BrokenFile, APlaylistThatNamesAnotherFileIsUnplayable) {
    SoundFixture bench;
    const auto song = bench.folder.counting_wav("a.wav", 1);
    const std::string list = "ffconcat version 1.0\nfile '" + song + "'\n";
    EXPECT_EQ(open_failure(bench, bench.folder.file("list.mp3", list)), FailureNumber::unplayable_file);
}

TEST(BrokenFile, AFailedRenderLeavesTheGraphEmpty) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 1));
    EXPECT_THROW(graph->RenderFile(bench.folder.path("nowhere.mp3")), Failure);
    EXPECT_EQ(graph->get_Duration(), 0);
}

TEST(BrokenFile, CutShortEndsWithItsSound) {
    SoundFixture bench;
    auto bytes = bytes_of(bench.folder.encoded("whole.mp3", 8, "-b:a 128k"));
    bytes.resize(bytes.size() / 2);
    const auto graph = bench.graph(bench.folder.file("cut.mp3", bytes));
    const double end = graph->get_Duration();
    EXPECT_NEAR(end, 4, 0.06);
    graph->Run();
    bench.run_for(seconds(5));
    EXPECT_DOUBLE_EQ(graph->get_CurrentPosition(), end);
    EXPECT_GT(bench.peak(nearest_frame(end - 0.1).count(), nearest_frame(end).count()), 0.3F);
    EXPECT_TRUE(bench.reports.empty()) << "nothing is missing of what it announced";
}

TEST(BrokenFile, ThatShrinksWhenItIsOpenIsSilentToItsAnnouncedEndAndReported) {
    SoundFixture bench;
    const auto path = bench.folder.encoded("a.mp3", 8, "-b:a 320k");
    const auto graph = bench.graph(path);
    std::filesystem::resize_file(path, std::filesystem::file_size(path) / 2);
    graph->Run();
    bench.run_for(seconds(7));
    EXPECT_GT(bench.peak(48000 * 3, 48000 * 7 / 2), 0.3F);
    EXPECT_EQ(bench.peak(48000 * 5, 48000 * 7), 0.0F);
    EXPECT_DOUBLE_EQ(graph->get_CurrentPosition(), 7.0);
    bench.run_for(seconds(5));
    EXPECT_DOUBLE_EQ(graph->get_CurrentPosition(), graph->get_Duration());
    ASSERT_EQ(bench.reports.size(), 1U);
    EXPECT_EQ(bench.reports[0].breaks, 2) << "the frame that is cut, and the early end";
    EXPECT_EQ(bench.reports[0].starved, Frames{0});
}

/// A file that shrinks while its graph plays it.
struct ShrinkingFile : SoundFixture {
    ShrinkingFile() {
        const auto path = folder.encoded("a.mp3", 8, "-b:a 320k");
        playing = graph(path);
        std::filesystem::resize_file(path, std::filesystem::file_size(path) / 2);
        playing->Run();
    }
    std::shared_ptr<MediaGraph> playing;
};

TEST(BrokenFile, IsReportedThoughItsGraphGoesRightBehindTheTrouble) {
    ShrinkingFile watched;
    while (watched.reports.empty())
        watched.run_for(milliseconds(10));
    ShrinkingFile left;
    left.run_for(watched.time.now() - milliseconds(50));
    left.playing.reset();
    left.run_for(seconds(1));
    EXPECT_EQ(left.reports.size(), 1U);
}

TEST(BrokenFile, NoiseInTheMiddleIsPassedOverAndReported) {
    SoundFixture bench;
    auto bytes = bytes_of(bench.folder.encoded("whole.mp3", 8, "-b:a 128k"));
    unsigned noise = 1;
    for (std::size_t at = bytes.size() / 2; at < bytes.size() / 2 + 20000; ++at) {
        noise = noise * 1664525 + 1013904223;
        bytes[at] = static_cast<char>(noise >> 24);
    }
    const auto graph = bench.graph(bench.folder.file("noise.mp3", bytes));
    graph->Run();
    bench.run_for(seconds(8));
    EXPECT_GT(bench.peak(48000 * 3, 48000 * 7 / 2), 0.3F);
    EXPECT_GT(bench.peak(48000 * 5, 48000 * 6), 0.3F) << "the music goes on behind it";
    ASSERT_FALSE(bench.reports.empty());
    EXPECT_GE(bench.reports[0].breaks, 1);
}

TEST(BrokenFile, AWavWhoseHeadLiesHasTheLengthOfWhatItHolds) {
    SoundFixture bench;
    auto bytes = bytes_of(bench.folder.counting_wav("a.wav", 2));
    const std::uint32_t lie = 0x7FFFFFF0;
    std::memcpy(bytes.data() + 76, &lie, sizeof lie);
    const auto graph = bench.graph(bench.folder.file("lie.wav", bytes));
    EXPECT_DOUBLE_EQ(graph->get_Duration(), 2.0);
}

TEST(BrokenFile, AWavOfZeroChannelsIsUnplayable) {
    SoundFixture bench;
    auto bytes = bytes_of(bench.folder.counting_wav("a.wav", 1));
    bytes[58] = 0;
    EXPECT_EQ(open_failure(bench, bench.folder.file("zero.wav", bytes)), FailureNumber::unplayable_file);
}

/// A disk that stops answering for a while.
class SlowFiles final : public SoundFiles {
public:
    std::atomic<int> delay_milliseconds{0};
    std::atomic<bool> fails{false};

    FileFacts facts(const std::string& path) override { return machine_.facts(path); }
    std::unique_ptr<RecordFile> open(const std::string& path) override {
        return std::make_unique<SlowFile>(*this, machine_.open(path));
    }

private:
    class SlowFile final : public RecordFile {
    public:
        SlowFile(SlowFiles& disk, std::unique_ptr<RecordFile> file)
            : disk_{disk},
              file_{std::move(file)} {}
        [[nodiscard]] std::int64_t length() const override { return file_->length(); }
        std::size_t read(std::int64_t position, std::span<std::byte> into) override {
            std::this_thread::sleep_for(std::chrono::milliseconds{disk_.delay_milliseconds.exchange(0)});
            if (disk_.fails)
                throw Failure{FailureNumber::device_fault};
            return file_->read(position, into);
        }

    private:
        SlowFiles& disk_;
        std::unique_ptr<RecordFile> file_;
    };

    MachineFiles machine_;
};

TEST(SlowDisk, IsSilentCatchesUpAndIsReported) {
    auto disk = std::make_shared<SlowFiles>();
    LiveFixture live{disk};
    const auto graph = live.graph(live.folder.counting_wav("a.wav", 20));
    EXPECT_DOUBLE_EQ(graph->get_Duration(), 20.0);
    live.go_on_air();
    live.live_for(milliseconds(200));
    disk->delay_milliseconds = 1500;
    Frames begin;
    live.driver.run_event([&] {
        graph->Run();
        begin = live.clock.now();
    });
    live.live_for(milliseconds(2500));
    EXPECT_DOUBLE_EQ(graph->get_CurrentPosition(), in_seconds(live.clock.now() - begin));
    live.output.reset();
    EXPECT_EQ(live.left(begin + milliseconds(30)), counted(1440)) << "what was decoded when it was opened";
    EXPECT_EQ(live.left(begin + milliseconds(700)), 0.0F);
    const Frames late = milliseconds(2200);
    EXPECT_EQ(live.left(begin + late), counted(late.count())) << "sound and position are together again";
    Frames starved;
    for (const SoundReport& report : live.reports)
        starved += report.starved;
    EXPECT_GT(starved, milliseconds(500));
    EXPECT_LT(live.reports.size(), 4U) << "one trouble, not one report a block";
}

TEST(SlowDisk, ThatDoesNotAnswerInTimeFailsTheLoad) {
    auto disk = std::make_shared<SlowFiles>();
    LiveFixture live{disk};
    const auto path = live.folder.counting_wav("a.wav", 2);
    disk->delay_milliseconds = 3000;
    const auto graph = live.media.create_graph();
    EXPECT_THROW(graph->RenderFile(path), Failure);
    EXPECT_EQ(graph->get_Duration(), 0);
    std::this_thread::sleep_for(std::chrono::milliseconds{1500}); // the one that was left behind comes home
}

TEST(SlowDisk, AGraphIsDroppedWithoutWaitingForIt) {
    auto disk = std::make_shared<SlowFiles>();
    LiveFixture live{disk};
    auto graph = live.graph(live.folder.counting_wav("a.wav", 20));
    live.go_on_air();
    live.live_for(milliseconds(100));
    disk->delay_milliseconds = 1000;
    live.driver.run_event([&] { graph->Run(); });
    live.live_for(milliseconds(100));
    const Frames before = live.bus.rendered();
    graph.reset();
    EXPECT_LT(live.bus.rendered(), before + milliseconds(900));
    live.live_for(milliseconds(1500));
}

TEST(SlowDisk, ThatFailsIsAnEarlyEnd) {
    auto disk = std::make_shared<SlowFiles>();
    SoundFixture bench{disk};
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 5));
    graph->Run();
    bench.run_for(seconds(1));
    disk->fails = true;
    bench.run_for(seconds(3));
    EXPECT_EQ(bench.peak(48000 * 3, 48000 * 4), 0.0F);
    EXPECT_DOUBLE_EQ(graph->get_CurrentPosition(), 4.0);
    ASSERT_FALSE(bench.reports.empty());
    EXPECT_EQ(bench.reports[0].breaks, 1);
}

} // namespace
} // namespace sonarelle
