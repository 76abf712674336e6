#include <gtest/gtest.h>

#include "platform/audio/gain.h"
#include "platform/audio/silent_media.h"
#include "platform/failure.h"
#include "sound_fixture.h"
#include "watched_files.h"

namespace sonarelle {
namespace {

FailureNumber failure_of(const std::function<void()>& statement) {
    try {
        statement();
        return FailureNumber::none;
    } catch (const Failure& failure) {
        return failure.number;
    }
}

/// Which file a failure to open it names.
std::string named_by_failure(Media& media, std::string_view path) {
    try {
        media.create_graph()->RenderFile(path);
        return {};
    } catch (const Failure& failure) {
        return failure.source;
    }
}

TEST(SoundGraph, NamesAFileThatCantBeOpenedAsTheStationDoes) {
    SoundFixture bench;
    constexpr std::string_view name = "C:\\Musique\\absent.mp3";
    const auto files = std::make_shared<MachineFiles>();
    const auto resolve = [&](std::string_view) { return bench.folder.path("absent.mp3"); };
    SoundMedia sounding{bench.time, bench.bus, files, resolve, Decoding::inline_with_rendering};
    SilentMedia silent{bench.time, files, resolve};
    EXPECT_EQ(named_by_failure(sounding, name), name);
    EXPECT_EQ(named_by_failure(silent, name), name);
}

TEST(SoundGraph, IsHeardFromTheFrameOfRunOn) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 1));
    bench.run_for(Frames{1001});
    graph->Run();
    bench.run_for(Frames{30000});
    EXPECT_EQ(bench.peak(0, 1001), 0.0F);
    for (std::int64_t frame = 0; frame < 30000; ++frame)
        ASSERT_EQ(bench.left(1001 + frame), counted(frame)) << frame;
}

TEST(SoundGraph, PositionGoesWithTheClockAndStandsAtTheEnd) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 1.5));
    graph->Run();
    bench.run_for(seconds(1));
    EXPECT_DOUBLE_EQ(graph->get_CurrentPosition(), 1.0);
    bench.run_for(seconds(10));
    EXPECT_DOUBLE_EQ(graph->get_CurrentPosition(), 1.5);
    EXPECT_EQ(graph->GetState(), MediaState::running);
}

TEST(SoundGraph, IsSilentBehindItsEnd) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 0.5));
    graph->Run();
    bench.run_for(seconds(1));
    EXPECT_EQ(bench.left(23999), counted(23999));
    EXPECT_EQ(bench.peak(24000, 48000), 0.0F);
}

TEST(SoundGraph, GoesOnAfterAPauseWithTheNextFrame) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 2));
    graph->Run();
    bench.run_for(Frames{20000});
    graph->Pause();
    bench.run_for(Frames{5000});
    graph->Run();
    bench.run_for(Frames{5000});
    EXPECT_EQ(bench.left(19999), counted(19999));
    EXPECT_EQ(bench.left(25000), counted(20000));
    EXPECT_EQ(bench.left(29999), counted(24999));
}

TEST(SoundGraph, FadesInTenMillisecondsWhenItHaltsAndIsSilent) {
    const std::array<void (MediaGraph::*)(), 2> ways{&MediaGraph::Pause, &MediaGraph::Stop};
    for (const auto halt : ways) {
        SoundFixture bench;
        const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 2));
        graph->Run();
        bench.run_for(Frames{20'000});
        ((*graph).*halt)();
        bench.run_for(Frames{10'000});
        for (std::int64_t frame = 0; frame < 480; ++frame)
            ASSERT_NEAR(bench.left(20'000 + frame), counted(20'000 + frame) * static_cast<float>(479 - frame) / 480,
                        1e-6F);
        EXPECT_EQ(bench.peak(20'480, 30'000), 0.0F);
    }
}

TEST(SoundGraph, PausedAndRunAgainAndAgainGoesOnWithTheNextFrame) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 4));
    std::int64_t now = 0;
    std::int64_t position = 0;
    for (const std::int64_t length : {7000, 500, 12'345, 3, 20'001}) {
        graph->Run();
        bench.run_for(Frames{length});
        for (std::int64_t frame = now == 0 ? 0 : 480; frame < length; ++frame)
            ASSERT_EQ(bench.left(now + frame), counted(position + frame)) << now << " + " << frame;
        graph->Pause();
        bench.run_for(Frames{1111});
        now += length + 1111;
        position += length;
    }
}

TEST(SoundGraph, StateFollowsItsCommands) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 2));
    EXPECT_EQ(graph->GetState(), MediaState::stopped);
    graph->Run();
    EXPECT_EQ(graph->GetState(), MediaState::running);
    graph->Pause();
    EXPECT_EQ(graph->GetState(), MediaState::paused);
    graph->Run();
    graph->Stop();
    EXPECT_EQ(graph->GetState(), MediaState::stopped);
    EXPECT_EQ(graph->get_StopTime(), 2);
    EXPECT_FALSE(graph->has_video());
}

TEST(SoundGraph, StopDoesNotRewind) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 2));
    graph->Run();
    bench.run_for(seconds(1));
    graph->Stop();
    bench.run_for(seconds(1));
    EXPECT_DOUBLE_EQ(graph->get_CurrentPosition(), 1.0);
}

TEST(SoundGraph, SeeksToTheSampleWhileItRuns) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 3));
    graph->Run();
    bench.run_for(Frames{10000});
    graph->put_CurrentPosition(2.0);
    bench.run_for(Frames{10000});
    EXPECT_EQ(bench.left(9999), counted(9999));
    for (std::int64_t frame = 0; frame < 10000; ++frame)
        ASSERT_EQ(bench.left(10000 + frame), counted(96000 + frame)) << frame;
}

TEST(SoundGraph, PlaysAnMp3FromAnyPlaceAsDecodingFromTheStartHasIt) {
    SoundFixture bench;
    const auto path = bench.folder.encoded("a.mp3", 6, "-q:a 3");
    const auto whole = decoded(path);
    const auto graph = bench.graph(path);
    graph->put_CurrentPosition(2.5);
    graph->Run();
    bench.run_for(seconds(3));
    ASSERT_TRUE(std::equal(bench.heard.begin(), bench.heard.end(), whole.begin() + 2 * 120000));
}

TEST(SoundGraph, SeekBehindTheEndStandsAtTheEnd) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 1));
    graph->Run();
    graph->put_CurrentPosition(5);
    bench.run_for(milliseconds(100));
    EXPECT_DOUBLE_EQ(graph->get_CurrentPosition(), 1.0);
    EXPECT_EQ(bench.peak(0, 4800), 0.0F);
}

TEST(SoundGraph, SeekBeforeTheBeginningStandsAtTheBeginning) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 1));
    graph->put_CurrentPosition(0.5);
    graph->put_CurrentPosition(-3);
    EXPECT_EQ(graph->get_CurrentPosition(), 0);
}

TEST(SoundGraph, SoughtWhileItHaltsIsSilent) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 2));
    graph->put_CurrentPosition(1);
    bench.run_for(Frames{1000});
    EXPECT_EQ(bench.peak(0, 1000), 0.0F);
    EXPECT_EQ(graph->get_CurrentPosition(), 1);
}

TEST(SoundGraph, RunAtItsEndIsSilent) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 0.5));
    graph->Run();
    bench.run_for(seconds(1));
    graph->Pause();
    graph->Run();
    bench.run_for(seconds(1));
    EXPECT_EQ(bench.peak(24'000, 96'000), 0.0F);
    EXPECT_EQ(graph->get_CurrentPosition(), 0.5);
    graph->put_CurrentPosition(0.25);
    bench.run_for(Frames{1000});
    EXPECT_EQ(bench.left(96'999), counted(12'999));
}

TEST(SoundGraph, TwoSeeksOfOneInstantPlayTheSecond) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 3));
    graph->Run();
    graph->put_CurrentPosition(2.0);
    graph->put_CurrentPosition(1.0);
    bench.run_for(Frames{100});
    EXPECT_EQ(bench.left(0), counted(48000));
}

TEST(SoundGraph, AVolumeSetBeforeRunHoldsFromTheFirstFrame) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 1));
    graph->put_Volume(Millibel{-2000});
    graph->Run();
    bench.run_for(Frames{100});
    EXPECT_FLOAT_EQ(bench.left(50), counted(50) * 0.1F);
}

TEST(SoundGraph, AVolumeSetWhileRunningIsReachedInTenMilliseconds) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 1));
    graph->Run();
    bench.run_for(Frames{1000});
    graph->put_Volume(Millibel{-10000});
    bench.run_for(Frames{1000});
    EXPECT_EQ(bench.left(1000), counted(1000));
    EXPECT_FLOAT_EQ(bench.left(1240), counted(1240) * 0.5F);
    EXPECT_EQ(bench.peak(1480, 2000), 0.0F);
}

TEST(SoundGraph, KeepsItsVolumeForTheNextFile) {
    SoundFixture bench;
    const auto path = bench.folder.counting_wav("a.wav", 1);
    const auto graph = bench.graph(path);
    graph->put_Volume(Millibel{-2000});
    EXPECT_EQ(graph->get_Volume(), Millibel{-2000});
    graph->RenderFile(path);
    graph->Run();
    bench.run_for(Frames{100});
    EXPECT_FLOAT_EQ(bench.left(50), counted(50) * 0.1F);
}

TEST(SoundGraph, VolumeGoesFromFullToNothing) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 1));
    graph->put_Volume(Millibel{-10'000});
    EXPECT_EQ(graph->get_Volume(), Millibel{-10'000});
    graph->put_Volume(Millibel{0});
    EXPECT_EQ(graph->get_Volume(), Millibel{0});
    EXPECT_EQ(failure_of([&] { bench.media.create_graph()->put_Volume(Millibel{0}); }), FailureNumber::wrong_call);
}

TEST(SoundGraph, VolumeOutsideItsRangeIsRefused) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 1));
    EXPECT_EQ(failure_of([&] { graph->put_Volume(Millibel{1}); }), FailureNumber::wrong_call);
    EXPECT_EQ(failure_of([&] { graph->put_Volume(Millibel{-10001}); }), FailureNumber::wrong_call);
    EXPECT_EQ(graph->get_Volume(), Millibel{0});
}

TEST(SoundGraph, VolumeOfASilentFilmIsRefused) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.encoded("film.mpg", 1, "-f lavfi -i testsrc=d=1:s=64x48 -map 1:v"));
    EXPECT_EQ(failure_of([&] { graph->put_Volume(Millibel{0}); }), FailureNumber::wrong_call);
}

TEST(SoundGraph, DroppedIsSilentWithinTenMillisecondsWithoutAClick) {
    SoundFixture bench;
    auto graph = bench.graph(bench.folder.encoded("tone.wav", 2, "-ar 48000"));
    graph->Run();
    bench.run_for(Frames{12345});
    graph.reset();
    bench.run_for(Frames{5000});
    float step = 0;
    for (std::int64_t frame = 12000; frame < 13000; ++frame)
        step = std::max(step, std::abs(bench.left(frame + 1) - bench.left(frame)));
    EXPECT_LT(step, 0.03F) << "the tone alone makes steps of 0.02";
    EXPECT_EQ(bench.peak(12345 + 480, 17000), 0.0F);
}

TEST(SoundGraph, EmptyHasNoLengthAndRunningItDoesNothing) {
    SoundFixture bench;
    const auto graph = bench.media.create_graph();
    graph->Run();
    EXPECT_EQ(graph->get_Duration(), 0);
    EXPECT_EQ(graph->get_CurrentPosition(), 0);
    EXPECT_EQ(graph->GetState(), MediaState::stopped);
}

TEST(SoundGraph, WhoseNextFileFailsIsEmptyAndSilent) {
    SoundFixture bench;
    const auto film = bench.folder.encoded("film.avi", 2, "-f lavfi -i testsrc=d=2:s=64x48 -c:a libmp3lame");
    const auto graph = bench.graph(film);
    EXPECT_TRUE(graph->has_video());
    graph->Run();
    bench.run_for(Frames{10'000});
    EXPECT_EQ(failure_of([&] { graph->RenderFile(bench.folder.path("absent.mp3")); }), FailureNumber::file_not_found);
    EXPECT_EQ(graph->GetState(), MediaState::stopped);
    EXPECT_EQ(graph->get_Duration(), 0);
    EXPECT_EQ(graph->get_CurrentPosition(), 0);
    EXPECT_FALSE(graph->has_video());
    EXPECT_EQ(failure_of([&] { graph->put_Volume(Millibel{0}); }), FailureNumber::wrong_call);
    graph->put_CurrentPosition(1);
    graph->Run();
    EXPECT_EQ(graph->GetState(), MediaState::stopped);
    bench.run_for(Frames{10'000});
    EXPECT_EQ(bench.peak(10'480, 20'000), 0.0F);
}

TEST(SoundGraph, PlaysItsNextFileFromTheBeginning) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 3));
    graph->put_CurrentPosition(1);
    graph->Run();
    bench.run_for(Frames{10'000});
    graph->RenderFile(bench.folder.counting_wav("b.wav", 2));
    EXPECT_EQ(graph->get_Duration(), 2);
    EXPECT_EQ(graph->GetState(), MediaState::stopped);
    graph->Run();
    bench.run_for(Frames{20'000});
    for (std::int64_t frame = 480; frame < 20'000; ++frame)
        ASSERT_EQ(bench.left(10'000 + frame), counted(frame)) << frame;
}

TEST(SoundGraph, SeveralSoundAtOnceAsTheirSum) {
    SoundFixture bench;
    const auto path = bench.folder.counting_wav("a.wav", 1);
    const auto first = bench.graph(path);
    const auto second = bench.graph(path);
    first->Run();
    bench.run_for(Frames{700});
    second->Run();
    bench.run_for(Frames{700});
    EXPECT_EQ(bench.left(800), counted(800) + counted(100));
}

TEST(SoundGraph, TheNextGraphTakesOverAFileThatWasOpenedAndNotPlayed) {
    const auto files = std::make_shared<WatchedFiles>();
    SoundFixture bench{files};
    const auto path = bench.folder.counting_wav("a.wav", 1);
    auto graph = bench.graph(path);
    for (int again = 0; again < 3; ++again) {
        graph = bench.media.create_graph();
        graph->RenderFile(path);
    }
    graph->Run();
    bench.run_for(Frames{20000});
    EXPECT_EQ(files->opened, 1);
    EXPECT_EQ(bench.left(19999), counted(19999));
}

TEST(SoundGraph, AChangedFileIsOpenedAnew) {
    SoundFixture bench;
    const auto path = bench.folder.counting_wav("a.wav", 1);
    auto graph = bench.graph(path);
    EXPECT_DOUBLE_EQ(graph->get_Duration(), 1.0);
    bench.folder.counting_wav("a.wav", 2);
    graph = bench.graph(path);
    EXPECT_DOUBLE_EQ(graph->get_Duration(), 2.0);
}

TEST(SoundGraph, AFileThatChangedBehindItsPreparationIsOpenedAnew) {
    SoundFixture bench;
    const auto path = bench.folder.counting_wav("a.wav", 1);
    (void)bench.graph(path); // given up unplayed
    bench.folder.counting_wav("a.wav", 2);
    EXPECT_DOUBLE_EQ(bench.graph(path)->get_Duration(), 2.0);
}

TEST(SoundGraph, MayBeDroppedByTheHundredInOneInstant) {
    SoundFixture bench;
    const auto path = bench.folder.counting_wav("a.wav", 1);
    for (int count = 0; count < 300; ++count)
        bench.graph(path)->Run();
    bench.run_for(Frames{2000});
    EXPECT_EQ(bench.peak(481, 2000), 0.0F);
}

} // namespace
} // namespace sonarelle
