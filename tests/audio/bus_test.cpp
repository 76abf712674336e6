#include <gtest/gtest.h>

#include "platform/audio/gain.h"
#include "platform/audio/limiter.h"
#include "platform/audio/wav_file_output.h"
#include "real_time_watch.h"
#include "sound_fixture.h"

namespace sonarelle {
namespace {

// Three graphs with commands on odd frames, rendered in blocks of one size.
std::vector<float> programme_in_blocks(const SoundFolder& folder, std::size_t block) {
    Scheduler scheduler;
    VirtualTime time{scheduler};
    ProgrammeBus bus;
    SoundMedia media{time, bus, std::make_shared<MachineFiles>(),
                     [](std::string_view path) { return std::string{path}; }, Decoding::inline_with_rendering};
    std::vector<std::shared_ptr<MediaGraph>> graphs;
    for (const char* name : {"a.wav", "b.wav", "a.wav"}) {
        graphs.push_back(media.create_graph());
        graphs.back()->RenderFile(folder.path(name));
    }
    time.at(Frames{7}, [&] { graphs[0]->Run(); });
    time.at(Frames{1501}, [&] { graphs[1]->Run(); });
    time.at(Frames{3333}, [&] { graphs[0]->put_Volume(Millibel{-600}); });
    time.at(Frames{3500}, [&] { graphs[0]->put_Volume(Millibel{-1200}); });
    time.at(Frames{5002}, [&] { graphs[2]->put_CurrentPosition(0.7); });
    time.at(Frames{5002}, [&] { graphs[2]->Run(); });
    time.at(Frames{6001}, [&] { graphs[1]->Pause(); });
    time.at(Frames{6200}, [&] { graphs[1]->Run(); });
    time.at(Frames{8009}, [&] { graphs[2]->put_CurrentPosition(0.1); });
    time.at(Frames{9999}, [&] { graphs[0].reset(); });
    time.run_until(Frames{12000}); // all commands are in the queue now, each with its frame

    std::vector<float> heard;
    std::vector<float> piece(2 * block);
    while (bus.rendered() < Frames{12000}) {
        media.feed();
        const auto left = static_cast<std::size_t>((Frames{12000} - bus.rendered()).count());
        bus.render(piece.data(), std::min(block, left));
        heard.insert(heard.end(), piece.begin(), piece.begin() + std::ptrdiff_t(2 * std::min(block, left)));
    }
    return heard;
}

TEST(ProgrammeBus, SoundsTheSameInWhateverBlocksItIsRendered) {
    const SoundFolder folder;
    folder.encoded("a.wav", 1, "-ar 48000 -af volume=2.2");
    folder.encoded("b.wav", 1, "");
    const auto whole = programme_in_blocks(folder, 4096);
    EXPECT_GT(*std::max_element(whole.begin(), whole.end()), 0.8F) << "the limiter has work to do";
    for (const std::size_t block : {1U, 64U, 441U, 1024U})
        EXPECT_EQ(programme_in_blocks(folder, block), whole) << block;
}

TEST(ProgrammeBus, CountsTheFramesThatItHasMade) {
    ProgrammeBus bus;
    std::vector<float> out(2 * 1000, 1.0F);
    bus.render(out.data(), 300);
    bus.render(out.data(), 1000);
    EXPECT_EQ(bus.rendered(), Frames{1300});
    EXPECT_EQ(bus.greatest_block(), Frames{1000});
    EXPECT_EQ(*std::max_element(out.begin(), out.end()), 0.0F);
}

TEST(ProgrammeBus, RemembersItsGreatestBlock) {
    ProgrammeBus bus;
    std::vector<float> out(2 * 1000);
    bus.render(out.data(), 1000);
    bus.render(out.data(), 300);
    EXPECT_EQ(bus.greatest_block(), Frames{1000});
}

/// A bus with one voice, whose stream has the number of its frame in thousandths on the left.
class OneVoice {
public:
    OneVoice() {
        const auto room = stream_->room();
        for (std::size_t sample = 0; sample < room.size(); ++sample)
            room[sample] = 0.001F * static_cast<float>(sample / 2);
        stream_->written(room.size() / 2);
    }
    void play(Frames at) {
        bus.send({.kind = BusCommand::Kind::play, .at = at, .voice = voice_, .ticket = new StreamTicket{stream_}});
        bus.housekeep();
    }
    void set_gain(float gain) {
        bus.send({.kind = BusCommand::Kind::gain, .voice = voice_, .gain = gain});
        bus.housekeep();
    }
    void drop(Frames at) {
        bus.send({.kind = BusCommand::Kind::drop, .at = at, .voice = voice_});
        bus.housekeep();
    }
    std::vector<float> render(std::size_t frames) {
        std::vector<float> out(2 * frames);
        bus.render(out.data(), frames);
        return out;
    }

    [[nodiscard]] Voice* voice() const { return voice_; }

    ProgrammeBus bus;

private:
    std::shared_ptr<SampleStream> stream_ =
        std::make_shared<SampleStream>(Frames{0}, Frames{1000}, std::size_t{1000}, std::make_shared<SoundTroubles>());
    Voice* voice_ = new Voice; // the bus gives it back
};

TEST(ProgrammeBus, LosesTheBeginningOfWhatIsPlayedTooLate) {
    OneVoice one;
    (void)one.render(300);
    one.play(Frames{100});
    EXPECT_FLOAT_EQ(one.render(1)[0], 0.2F);
    EXPECT_EQ(one.bus.late_commands(), 1);
}

TEST(ProgrammeBus, GivesAVoiceBackOnceItHasFaded) {
    OneVoice one;
    one.play(Frames{0});
    (void)one.render(100);
    one.drop(Frames{100});
    (void)one.render(100);
    one.bus.housekeep();
    (void)one.render(ramp_frames);
    RealTimeWatch::begin();
    one.bus.housekeep();
    EXPECT_EQ(RealTimeWatch::end().allocations, 1);
}

TEST(ProgrammeBus, GivesBackEverythingWhenItGoes) {
    const auto stream =
        std::make_shared<SampleStream>(Frames{0}, Frames{1000}, std::size_t{1000}, std::make_shared<SoundTroubles>());
    auto bus = std::make_unique<ProgrammeBus>();
    const auto play = [&](Voice* voice, Frames at) {
        bus->send({.kind = BusCommand::Kind::play, .at = at, .voice = voice, .ticket = new StreamTicket{stream}});
    };
    auto* sounding = new Voice;
    auto* waiting = new Voice;
    play(sounding, Frames{0});
    std::vector<float> out(2 * 100);
    bus->render(out.data(), 100);
    for (int more = 0; more < 3000; ++more) // more than fit into the queue
        play(waiting, seconds(60));
    EXPECT_EQ(stream.use_count(), 3002);
    bus.reset();
    EXPECT_EQ(stream.use_count(), 1);
}

TEST(ProgrammeBus, ObeysAfterwardsWhatDidNotFitIntoTheQueue) {
    OneVoice one;
    for (int command = 0; command < 1100; ++command)
        one.bus.send({.kind = BusCommand::Kind::gain, .voice = one.voice(), .gain = 0.5F});
    one.play(Frames{0});
    EXPECT_EQ(one.render(1)[1], 0.0F);
    one.bus.housekeep();
    EXPECT_EQ(one.render(1)[0], 0.5F * 0.001F);
}

TEST(ProgrammeBus, ObeysCommandsOnTheirFramesInTheMidstOfABlock) {
    OneVoice one;
    one.set_gain(0.25F);
    one.play(Frames{3});
    one.bus.send({.kind = BusCommand::Kind::halt, .at = Frames{400}, .voice = one.voice()});
    one.bus.send({.kind = BusCommand::Kind::play, .at = Frames{900}, .voice = one.voice(), .position = Frames{397}});
    const auto heard = one.render(1500);
    for (int frame = 0; frame < 1500; ++frame) {
        const double place = frame < 3 ? 0 : frame < 900 ? frame - 3 : frame - 900 + 397;
        const double fade = frame < 400 || frame >= 900 ? 1 : std::max(0.0, 1 - (frame - 399) / 480.0);
        ASSERT_NEAR(heard[static_cast<std::size_t>(2 * frame)], 0.25 * 0.001 * place * fade, 1e-6) << frame;
    }
    EXPECT_EQ(one.bus.late_commands(), 0);
}

TEST(ProgrammeBus, TakesJustTheLevelOfSilenceForSound) {
    OneVoice one;
    one.play(Frames{100'000});
    (void)one.render(100'002); // frame 1 of the stream has a thousandth
    EXPECT_EQ(one.bus.silence().until, Frames{100'001});
    EXPECT_EQ(one.bus.silence().since, Frames{100'002});
    EXPECT_EQ(one.bus.silence().known, Frames{100'002});
}

TEST(ProgrammeBus, TellsTheFrameOnWhichALongSilenceEnded) {
    OneVoice one;
    one.set_gain(0.002F); // under which frame 500 is the first one to sound
    (void)one.render(100'000);
    one.play(Frames{100'000});
    (void)one.render(1000);
    EXPECT_NEAR(static_cast<double>(one.bus.silence().until.count()), 100'500, 1);
}

TEST(ProgrammeBus, IsSilentFromItsLastLoudFrameOn) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 1));
    graph->Run();
    bench.run_for(seconds(1));
    EXPECT_EQ(bench.bus.silence().since, bench.bus.silence().known);
    bench.run_for(seconds(4));
    EXPECT_NEAR(in_seconds(bench.bus.silence().since), 1, 0.001);
    EXPECT_EQ(bench.bus.silence().known, seconds(5));
}

TEST(ProgrammeBus, IsSilentBehindTheLastFrameInWhichOneChannelSounded) {
    for (const std::size_t channel : {0U, 1U}) {
        SoundFixture bench;
        std::vector<float> frames(2 * 5000);
        for (std::size_t frame = 0; frame < 4321; ++frame)
            frames[2 * frame + channel] = 0.5F;
        WavFileOutput file{bench.folder.path("a.wav")};
        file.write(frames);
        file.close();
        const auto graph = bench.graph(bench.folder.path("a.wav"));
        graph->Run();
        bench.run_for(seconds(1));
        EXPECT_EQ(bench.bus.silence().since, Frames{4321}) << channel;
    }
}

TEST(ProgrammeBus, CountsASilenceOfJustTwoSecondsAsLong) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 10));
    bench.time.at(seconds(2), [&] { graph->Run(); });
    bench.run_for(seconds(3));
    EXPECT_GE(bench.bus.silence().until, seconds(2));
}

TEST(ProgrammeBus, TellsWhereALongSilenceEnded) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 10));
    bench.time.at(seconds(3), [&] { graph->Run(); });
    bench.run_for(seconds(4));
    EXPECT_NEAR(in_seconds(bench.bus.silence().until), 3, 0.011); // behind the ramp of the start
}

TEST(ProgrammeBus, TakesSoundBelowMinusSixtyDecibelsForSilence) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 10));
    graph->put_Volume(Millibel{-9000});
    graph->Run();
    bench.run_for(seconds(3));
    EXPECT_LT(bench.bus.silence().since, milliseconds(11)); // the ramp of the volume
}

TEST(Limiter, PassesWhatStaysBelowOneDecibelBitForBit) {
    Limiter limiter;
    std::vector<float> frames;
    for (int sample = 0; sample < 10000; ++sample)
        frames.push_back(Limiter::ceiling * static_cast<float>(std::sin(sample * 0.37)));
    auto limited = frames;
    limiter.apply(limited);
    EXPECT_EQ(limited, frames);
}

TEST(Limiter, NeverLetsMoreThanItsCeilingPass) {
    Limiter limiter;
    std::vector<float> frames;
    for (int sample = 0; sample < 100000; ++sample)
        frames.push_back(3.0F * static_cast<float>(std::sin(sample * 0.37) * std::sin(sample * 0.0011)));
    limiter.apply(frames);
    for (const float sample : frames)
        ASSERT_LE(std::abs(sample), Limiter::ceiling);
}

TEST(Limiter, IsTransparentAgainAfterALoudPlace) {
    Limiter limiter;
    std::vector<float> frames(2 * 48000, 0.5F);
    frames[10] = 2.0F;
    limiter.apply(frames);
    EXPECT_LT(frames[12], 0.5F);
    EXPECT_EQ(frames.back(), 0.5F);
}

TEST(BusTaps, ShowPeakAndTheNewestFrames) {
    SoundFixture bench;
    const auto graph = bench.graph(bench.folder.counting_wav("a.wav", 2));
    graph->Run();
    bench.run_for(Frames{20000});
    EXPECT_NEAR(bench.bus.taps().level().peak[1], 0.3, 0.001);
    EXPECT_EQ(bench.bus.taps().level().peak[1], 0.0F) << "asked for, a peak begins anew";
    std::vector<float> newest(2 * 100);
    bench.bus.taps().newest(newest);
    EXPECT_TRUE(std::equal(newest.begin(), newest.end(), bench.heard.end() - 200));
}

TEST(BusTaps, GiveAsManyOfTheNewestFramesAsAreAskedForUpToHalf) {
    constexpr std::size_t half = BusTaps::kept_frames / 2;
    const auto taps = std::make_unique<BusTaps>();
    for (int block = 0; block < 50; ++block) {
        std::vector<float> frames;
        for (int frame = 1000 * block; frame < 1000 * (block + 1); ++frame)
            frames.insert(frames.end(), {static_cast<float>(frame), -static_cast<float>(frame)});
        taps->take(frames, Level{}, Frames{1000 * block});
    }
    EXPECT_EQ(taps->end(), Frames{50'000});
    for (const std::size_t asked : {std::size_t{0}, std::size_t{1}, std::size_t{777}, half, half + 5}) {
        std::vector<float> frames(2 * asked + 2, 0.5F);
        taps->newest(std::span{frames}.first(2 * asked));
        const std::size_t given = std::min(asked, half);
        for (std::size_t frame = 0; frame < given; ++frame) {
            const auto number = static_cast<float>(50'000 - given + frame);
            ASSERT_EQ(frames[2 * frame], number) << asked;
            ASSERT_EQ(frames[2 * frame + 1], -number) << asked;
        }
        EXPECT_EQ(frames[2 * given], 0.5F) << asked;
        EXPECT_EQ(frames[2 * given + 1], 0.5F) << asked;
    }
}

TEST(BusTaps, KeepTheGreatestLevelOfEachChannelUntilItIsAskedFor) {
    const auto taps = std::make_unique<BusTaps>();
    const std::vector<float> frame(2);
    for (const Level& level : {Level{{0.5F, 0.1F}}, Level{{0.2F, 0.3F}}, Level{{0.0F, 0.4F}}, Level{{0.1F, 0.2F}}})
        taps->take(frame, level, taps->end());
    EXPECT_EQ(taps->level().peak, (std::array{0.5F, 0.4F}));
}

} // namespace
} // namespace sonarelle
