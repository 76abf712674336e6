#include "platform/simulated/simulated_media.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/failure.h"
#include "platform/scheduler.h"
#include "platform/simulated/simulated_disk.h"
#include "platform/simulated/virtual_time.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string track = "D:\\Musique\\Été.mp3";

class Graph : public testing::Test {
protected:
    Graph() {
        disk.put_file(track);
        media.set_length(track, 200);
    }
    FailureNumber failure_of_render(std::string_view path) {
        try {
            graph->RenderFile(path);
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.source, path);
            return failure.number;
        }
        return FailureNumber::none;
    }

    Scheduler scheduler;
    VirtualTime time{scheduler};
    SimulatedDisk disk{time};
    SimulatedMedia media{time, disk};
    std::shared_ptr<MediaGraph> graph = media.create_graph();
};

using GraphRender = Graph;
using GraphTime = Graph;
using GraphVolume = Graph;
using GraphLog = Graph;

TEST_F(GraphRender, GivesTheLengthThatTheTestSet) {
    graph->RenderFile("d:\\musique\\ÉTÉ.MP3");
    EXPECT_EQ(graph->get_Duration(), 200);
    EXPECT_EQ(graph->get_StopTime(), 200);
    EXPECT_EQ(graph->GetState(), MediaState::stopped);
}

TEST_F(GraphRender, ResolvesANameInTheCurrentFolder) {
    disk.ChDrive("D:");
    disk.ChDir("D:\\Musique");
    EXPECT_EQ(failure_of_render("été.mp3"), FailureNumber::none);
}

TEST_F(GraphRender, AMissingFileIsFailure53) {
    media.set_length("D:\\Musique\\parti.mp3", 200);
    EXPECT_EQ(failure_of_render("D:\\Musique\\parti.mp3"), FailureNumber::file_not_found);
    EXPECT_EQ(failure_of_render("D:\\Jazz\\parti.mp3"), FailureNumber::file_not_found);
    EXPECT_EQ(failure_of_render("E:\\parti.mp3"), FailureNumber::file_not_found);
}

TEST_F(GraphRender, AFileThatVanishesAfterTheLookIsFailure53) {
    disk.vanish_after_look(track);
    ASSERT_EQ(disk.Dir(track), "Été.mp3");
    EXPECT_EQ(failure_of_render(track), FailureNumber::file_not_found);
}

TEST_F(GraphRender, AFileOfUnknownLengthIsUnplayable) {
    disk.put_file("D:\\Musique\\texte.mp3");
    EXPECT_EQ(failure_of_render("D:\\Musique\\texte.mp3"), FailureNumber::unplayable_file);
}

TEST_F(GraphRender, AnUnplayableFileIsFailure1001) {
    media.set_unplayable(track);
    EXPECT_EQ(failure_of_render(track), FailureNumber::unplayable_file);
}

TEST_F(GraphRender, AFileThatTheDiskRefusesIsUnplayable) {
    disk.refuse(track, FailureNumber::permission_refused);
    EXPECT_EQ(failure_of_render(track), FailureNumber::unplayable_file);
}

TEST_F(GraphRender, AFailedOneLeavesTheGraphEmpty) {
    media.set_unplayable(track);
    EXPECT_EQ(failure_of_render(track), FailureNumber::unplayable_file);
    graph->Run();
    time.run_for(seconds(5));
    EXPECT_EQ(graph->get_Duration(), 0);
    EXPECT_EQ(graph->get_CurrentPosition(), 0);
    EXPECT_EQ(graph->GetState(), MediaState::stopped);
}

TEST_F(GraphRender, KnowsPictures) {
    media.set_video(track);
    EXPECT_FALSE(graph->has_video());
    graph->RenderFile(track);
    EXPECT_TRUE(graph->has_video());
}

TEST_F(GraphTime, APositionGoesOnAtTheClocksPace) {
    graph->RenderFile(track);
    time.run_for(seconds(5));
    graph->Run();
    time.run_for(seconds(3));
    EXPECT_EQ(graph->get_CurrentPosition(), 3);
    EXPECT_EQ(graph->GetState(), MediaState::running);
}

TEST_F(GraphTime, AGraphStandsWhilePausedAndWhenStopped) {
    graph->RenderFile(track);
    graph->Run();
    time.run_for(seconds(3));
    graph->Pause();
    time.run_for(seconds(3));
    EXPECT_EQ(graph->get_CurrentPosition(), 3);
    graph->Run();
    time.run_for(seconds(1));
    graph->Stop();
    time.run_for(seconds(1));
    EXPECT_EQ(graph->get_CurrentPosition(), 4);
    EXPECT_EQ(graph->GetState(), MediaState::stopped);
}

TEST_F(GraphTime, ASeekIsExact) {
    graph->RenderFile(track);
    graph->put_CurrentPosition(0.1);
    EXPECT_EQ(graph->get_CurrentPosition(), 0.1);
}

TEST_F(GraphTime, OnAirIsWhatRunsBeforeItsEnd) {
    disk.put_file("D:\\b.mp3");
    media.set_length("D:\\b.mp3", 10);
    const auto other = media.create_graph();
    graph->RenderFile(track);
    other->RenderFile("D:\\b.mp3");
    EXPECT_THAT(media.on_air(), IsEmpty());
    graph->Run();
    other->Run();
    EXPECT_THAT(media.on_air(), ElementsAre(track, "D:\\b.mp3"));
    time.run_for(seconds(10));
    EXPECT_THAT(media.on_air(), ElementsAre(track));
    graph.reset();
    EXPECT_THAT(media.on_air(), IsEmpty());
    EXPECT_EQ(media.graphs(), 1U);
}

TEST_F(GraphVolume, IsFullAtFirstAndThenWhatWasPut) {
    graph->RenderFile(track);
    EXPECT_EQ(graph->get_Volume(), Millibel{0});
    graph->put_Volume(Millibel{-10000});
    EXPECT_EQ(graph->get_Volume(), Millibel{-10000});
}

TEST_F(GraphVolume, OfASilentFileIsFailure5) {
    media.set_silent(track);
    graph->RenderFile(track);
    EXPECT_THROW(graph->put_Volume(Millibel{-200}), Failure);
    EXPECT_EQ(graph->get_Volume(), Millibel{0});
}

TEST_F(GraphVolume, OutsideTheRangeIsFailure5) {
    graph->RenderFile(track);
    EXPECT_THROW(graph->put_Volume(Millibel{1}), Failure);
    EXPECT_THROW(graph->put_Volume(Millibel{-10001}), Failure);
}

TEST_F(GraphLog, HoldsEachCommandWithItsFrame) {
    media.clear_log();
    graph = media.create_graph();
    time.run_for(seconds(1));
    graph->RenderFile(track);
    graph->put_Volume(Millibel{-200});
    graph->put_CurrentPosition(2.5);
    time.run_for(seconds(1));
    graph->Run();
    graph->put_Caption("Été");
    time.run_for(seconds(1));
    graph->Pause();
    graph->Stop();
    graph.reset();

    std::vector<std::pair<MediaAction, std::int64_t>> commands;
    for (const MediaCommand& command : media.log())
        if (command.graph == 2)
            commands.emplace_back(command.action, command.at.count() / frame_rate);
    using enum MediaAction;
    EXPECT_THAT(commands, ElementsAre(std::pair{created, 0}, std::pair{rendered, 1}, std::pair{volume, 1},
                                      std::pair{position, 1}, std::pair{run, 2}, std::pair{caption, 2},
                                      std::pair{paused, 3}, std::pair{stopped, 3}, std::pair{dropped, 3}));
}

TEST_F(GraphLog, HoldsTheirValues) {
    graph->RenderFile(track);
    media.clear_log();
    graph->put_Volume(Millibel{-200});
    graph->put_CurrentPosition(2.5);
    graph->put_Caption("Été");
    ASSERT_EQ(media.log().size(), 3U);
    EXPECT_EQ(media.log()[0].value, -200);
    EXPECT_EQ(media.log()[1].value, 2.5);
    EXPECT_EQ(media.log()[2].text, "Été");
    EXPECT_EQ(media.log()[2].path, track);
}

TEST_F(GraphLog, LeavesOutWhatAnEmptyGraphDidNotDo) {
    media.clear_log();
    graph->Run();
    graph->Pause();
    graph->Stop();
    EXPECT_THAT(media.log(), IsEmpty());
}

TEST_F(GraphTime, MediaAreSilentWhileNoGraphRuns) {
    graph->RenderFile(track);
    time.run_for(seconds(5));
    graph->Run();
    time.run_for(seconds(10));
    EXPECT_EQ(media.silence().since, media.silence().known);
    EXPECT_EQ(media.silence().until, seconds(5));
    graph->Stop();
    time.run_for(seconds(3));
    EXPECT_EQ(media.silence().since, seconds(15));
}

TEST_F(GraphTime, MediaAreSilentBehindTheEndOfAFile) {
    graph->RenderFile(track);
    graph->Run();
    time.run_for(seconds(210));
    EXPECT_EQ(media.silence().since, seconds(200));
}

TEST_F(GraphTime, MediaAreSilentFromWhereAGraphIsDropped) {
    graph->RenderFile(track);
    graph->Run();
    time.run_for(seconds(7));
    graph.reset();
    time.run_for(seconds(7));
    EXPECT_EQ(media.silence().since, seconds(7));
}

TEST_F(GraphTime, AQuietFileIsSilence) {
    media.set_quiet(track);
    graph->RenderFile(track);
    graph->Run();
    time.run_for(seconds(7));
    EXPECT_EQ(media.silence().since, Frames{});
}

} // namespace

} // namespace sonarelle
