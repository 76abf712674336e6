// Graphs that only keep the time of their files.
#include "platform/audio/silent_media.h"

#include <gtest/gtest.h>

#include "platform/failure.h"
#include "platform/scheduler.h"
#include "platform/simulated/virtual_time.h"
#include "sound_fixture.h"
#include "watched_files.h"

namespace sonarelle {
namespace {

class SilentGraphs : public testing::Test {
protected:
    /// A graph on a file of 10 s.
    [[nodiscard]] std::shared_ptr<MediaGraph> song() {
        auto graph = media.create_graph();
        graph->RenderFile(path_);
        return graph;
    }
    void expect_silence(Frames since, Frames until) const {
        EXPECT_EQ(media.silence().since, since);
        EXPECT_EQ(media.silence().until, until);
        EXPECT_EQ(media.silence().known, time.now());
    }

    SoundFolder folder;
    Scheduler scheduler;
    VirtualTime time{scheduler};
    SilentMedia media{time, std::make_shared<MachineFiles>(), [](std::string_view path) { return std::string{path}; }};

private:
    const std::string path_ = folder.counting_wav("dix secondes.wav", 10);
};

FailureNumber failure_of(const std::function<void()>& statement) {
    try {
        statement();
        return FailureNumber::none;
    } catch (const Failure& failure) {
        return failure.number;
    }
}

TEST_F(SilentGraphs, StandStoppedAtTheBeginningOnceTheyAreLoaded) {
    const auto graph = song();
    EXPECT_EQ(graph->GetState(), MediaState::stopped);
    EXPECT_EQ(graph->get_Duration(), 10);
    EXPECT_EQ(graph->get_StopTime(), 10);
    EXPECT_EQ(graph->get_CurrentPosition(), 0);
    EXPECT_FALSE(graph->has_video());
}

TEST_F(SilentGraphs, GoWithTheClockWhileTheyRun) {
    const auto graph = song();
    graph->Run();
    EXPECT_EQ(graph->GetState(), MediaState::running);
    time.run_for(seconds(3));
    graph->Run(); // changes nothing
    EXPECT_EQ(graph->get_CurrentPosition(), 3);
    graph->Pause();
    EXPECT_EQ(graph->GetState(), MediaState::paused);
    time.run_for(seconds(1));
    EXPECT_EQ(graph->get_CurrentPosition(), 3);
    graph->Run();
    time.run_for(seconds(2));
    graph->Stop();
    EXPECT_EQ(graph->GetState(), MediaState::stopped);
    time.run_for(seconds(1));
    EXPECT_EQ(graph->get_CurrentPosition(), 5);
}

TEST_F(SilentGraphs, GoOnFromWhereTheyAreSet) {
    const auto graph = song();
    graph->put_CurrentPosition(8);
    EXPECT_EQ(graph->get_CurrentPosition(), 8);
    graph->Run();
    time.run_for(seconds(1));
    EXPECT_EQ(graph->get_CurrentPosition(), 9);
    time.run_for(seconds(5));
    EXPECT_EQ(graph->get_CurrentPosition(), 10);
}

TEST_F(SilentGraphs, AreSilentButWhileTheyRun) {
    const auto graph = song();
    time.run_for(seconds(1));
    expect_silence(Frames{}, Frames{});
    graph->Run();
    time.run_for(seconds(2));
    expect_silence(seconds(3), Frames{});
    graph->Pause();
    time.run_for(seconds(3));
    expect_silence(seconds(3), Frames{});
    graph->Run();
    time.run_for(seconds(1));
    expect_silence(seconds(7), seconds(6));
    graph->Stop();
    time.run_for(seconds(4));
    expect_silence(seconds(7), seconds(6));
}

TEST_F(SilentGraphs, SoundUpToTheEndOfTheirFile) {
    const auto graph = song();
    graph->Run();
    time.run_for(seconds(15));
    expect_silence(seconds(10), Frames{});
}

TEST_F(SilentGraphs, SoundBeforeASeekAndBehindIt) {
    const auto graph = song();
    graph->Run();
    time.run_for(seconds(4));
    graph->put_CurrentPosition(9);
    time.run_for(seconds(5));
    expect_silence(seconds(5), Frames{});
}

TEST_F(SilentGraphs, HaveSoundedWhenTheyAreGone) {
    auto graph = song();
    graph->Run();
    time.run_for(seconds(4));
    graph.reset();
    time.run_for(seconds(2));
    expect_silence(seconds(4), Frames{});
    graph = song();
    graph->Run();
    time.run_for(seconds(1));
    graph->RenderFile(folder.counting_wav("une seconde.wav", 1));
    EXPECT_EQ(graph->GetState(), MediaState::stopped);
    EXPECT_EQ(graph->get_CurrentPosition(), 0);
    EXPECT_EQ(graph->get_Duration(), 1);
    time.run_for(seconds(1));
    expect_silence(seconds(7), seconds(6));
}

TEST_F(SilentGraphs, SoundTogether) {
    const auto first = song();
    const auto second = song();
    first->Run();
    time.run_for(seconds(8));
    second->Run();
    time.run_for(seconds(6));
    expect_silence(seconds(14), Frames{});
}

TEST_F(SilentGraphs, KeepTheVolumeThatIsSet) {
    const auto graph = song();
    EXPECT_EQ(graph->get_Volume(), Millibel{0});
    graph->put_Volume(Millibel{-600});
    EXPECT_EQ(graph->get_Volume(), Millibel{-600});
}

TEST_F(SilentGraphs, RefuseAVolumeWithoutSound) {
    EXPECT_EQ(failure_of([&] { media.create_graph()->put_Volume(Millibel{0}); }), FailureNumber::wrong_call);
    const auto film = media.create_graph();
    film->RenderFile(folder.encoded("film.mpg", 1, "-f lavfi -i testsrc=d=1:s=64x48 -map 1:v"));
    EXPECT_TRUE(film->has_video());
    EXPECT_EQ(failure_of([&] { film->put_Volume(Millibel{0}); }), FailureNumber::wrong_call);
}

TEST_F(SilentGraphs, DoNotRunEmpty) {
    const auto graph = media.create_graph();
    graph->Run();
    EXPECT_EQ(graph->GetState(), MediaState::stopped);
    const auto failed = song();
    EXPECT_EQ(failure_of([&] { failed->RenderFile(folder.path("absent.mp3")); }), FailureNumber::file_not_found);
    failed->Run();
    EXPECT_EQ(failed->GetState(), MediaState::stopped);
    EXPECT_EQ(failure_of([&] { failed->put_Volume(Millibel{0}); }), FailureNumber::wrong_call);
}

TEST_F(SilentGraphs, OpenAFileOnceForManyStarts) {
    const auto files = std::make_shared<WatchedFiles>();
    SilentMedia counted{time, files, [](std::string_view path) { return std::string{path}; }};
    for (int start = 0; start < 3; ++start)
        counted.create_graph()->RenderFile(folder.path("dix secondes.wav"));
    EXPECT_EQ(files->opened, 1);
}

} // namespace
} // namespace sonarelle
