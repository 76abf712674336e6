#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <thread>

#include "audio/live_fixture.h"
#include "platform/audio/sdl_devices.h"
#include "platform/timer.h"
#include "pulse_server.h"

namespace sonarelle {
namespace {

class SoundCard : public testing::Test {
protected:
    SoundCard() {
        SdlDevices::ask_for_large_buffers();
        server.start();
    }

    void go_on_air() {
        live.output = std::make_unique<LiveOutput>(live.bus, std::make_unique<SdlDevices>(), "",
                                                   [this](OutputState state) { live.last_state = state; });
    }
    // Waits until the recorder has something louder than silence behind this many bytes.
    void wait_for_sound(const std::string& file) {
        live.live_until([&] {
            const auto heard = recorded_floats(file);
            return std::any_of(heard.begin(), heard.end(), [](float sample) { return std::abs(sample) > 0.01F; });
        });
    }

    LiveFixture live;
    PulseServer server{live.folder.path("pulse")};
};

// Every frame of the programme was recorded, unchanged and in order, behind the delay of the way. A server that comes
// late on a busy machine puts silence of its own in between, which says nothing about the programme.
void expect_all_heard(const std::vector<float>& recorded, const std::vector<float>& programme) {
    std::size_t at = 0;
    for (std::size_t sample = 0; sample < programme.size(); sample += 2) {
        const auto same = [&] {
            return recorded[at] == programme[sample] && recorded[at + 1] == programme[sample + 1];
        };
        while (at + 1 < recorded.size() && !same() && recorded[at] == 0.0F && recorded[at + 1] == 0.0F)
            at += 2;
        ASSERT_LT(at + 1, recorded.size()) << "nothing more was recorded at frame " << sample / 2;
        ASSERT_TRUE(same()) << "frame " << sample / 2;
        at += 2;
    }
}

TEST_F(SoundCard, PlaysTheRehearsalSampleForSample) {
    SoundFixture rehearsal;
    ThreeGraphs::make_files(rehearsal.folder);
    const ThreeGraphs rehearsed{rehearsal.scheduler, rehearsal.media, rehearsal.folder};
    rehearsal.run_for(ThreeGraphs::length);

    const auto file = live.folder.path("air.raw");
    server.record(file);
    const ThreeGraphs aired{live.scheduler, live.media, rehearsal.folder};
    go_on_air();
    live.live_until([&] { return live.bus.rendered() >= ThreeGraphs::length + seconds(1); });
    server.stop_recording();
    live.output.reset();

    ASSERT_TRUE(live.reports.empty()) << "starved frames: " << live.reports.front().starved.count();
    ASSERT_EQ(live.bus.late_commands(), 0);
    expect_all_heard(recorded_floats(file), rehearsal.heard);
}

TEST_F(SoundCard, TheProgrammeGoesOnWhileTheServerIsDeadAndIsHeardOnTheNextOne) {
    const auto graph = live.graph(live.folder.counting_wav("a.wav", 60));
    go_on_air();
    live.live_until([&] { return live.last_state == OutputState::playing; });
    live.driver.run_event([&] { graph->Run(); });
    live.live_for(milliseconds(500));
    server.kill();
    live.live_until([&] { return live.last_state == OutputState::paced; });
    live.live_for(seconds(1));
    server.start();
    const auto file = live.folder.path("air.raw");
    server.record(file);
    wait_for_sound(file);
    live.live_until([&] { return live.last_state == OutputState::playing; });
}

TEST_F(SoundCard, TheProgrammeGoesOnWhileTheServerHangs) {
    const auto graph = live.graph(live.folder.counting_wav("a.wav", 60));
    go_on_air();
    live.live_until([&] { return live.last_state == OutputState::playing; });
    live.driver.run_event([&] { graph->Run(); });
    live.live_for(milliseconds(500));
    server.freeze();
    live.live_until([&] { return live.last_state == OutputState::paced; });
    live.live_for(seconds(1));
    server.thaw();
    live.live_until([&] { return live.last_state == OutputState::playing; });
    const auto file = live.folder.path("air.raw");
    server.record(file);
    wait_for_sound(file);
}

TEST_F(SoundCard, AWindowHeldForFiveSecondsStartsTheDeckAtTheEndOfTheHold) {
    const auto path = live.folder.counting_wav("a.wav", 3);
    const auto graph = live.graph(path);
    Timer chain{"Timer4", 4, live.scheduler};
    Timer clock{"Timer1", 1, live.scheduler};
    std::vector<Frames> seconds_seen;
    Frames due;
    Frames heard_on;
    clock.set_interval(Integer{1000});
    clock.on_tick = [&] { seconds_seen.push_back(live.clock.now()); };
    chain.set_interval(Integer{500});
    chain.on_tick = [&] {
        chain.disable();
        due = live.clock.now();
        std::this_thread::sleep_for(std::chrono::seconds{5});
        graph->Run();
        heard_on = live.clock.now();
    };
    clock.enable();
    chain.enable();
    const auto file = live.folder.path("air.raw");
    server.record(file);
    go_on_air();
    live.live_until([&] { return heard_on > Frames{} && live.bus.rendered() > heard_on + seconds(4); });
    server.stop_recording();

    EXPECT_GT(heard_on, due + milliseconds(4800));
    // A second that was missed comes late, and none is left out or seen twice; now doesn't go back behind the start.
    ASSERT_GE(seconds_seen.size(), 8U);
    for (std::size_t tick = 0; tick < 8; ++tick)
        EXPECT_EQ(seconds_seen[tick], std::max(seconds(static_cast<std::int64_t>(tick) + 1), heard_on)) << tick;
    auto programme = decoded(path);
    programme.resize(2 * 48000);
    expect_all_heard(recorded_floats(file), programme);
}

TEST_F(SoundCard, EndsWhileTheServerHangs) {
    go_on_air();
    live.live_until([&] { return live.last_state == OutputState::playing; });
    server.freeze();
    live.output.reset();
    server.thaw();
}

TEST_F(SoundCard, AnotherOneThatIsPluggedInIsTakenOnTheAir) {
    const auto graph = live.graph(live.folder.counting_wav("a.wav", 60));
    go_on_air();
    live.live_until([&] { return live.last_state == OutputState::playing; });
    live.driver.run_event([&] { graph->Run(); });
    live.output->choose("Studio");
    live.live_for(milliseconds(500));
    EXPECT_EQ(live.output->playing_on(), "");
    server.plug_in("Studio");
    live.live_until([&] { return live.output->playing_on() == "Studio"; });
    const auto file = live.folder.path("studio.raw");
    server.record(file, "Studio");
    wait_for_sound(file);
    EXPECT_EQ(live.output->device_names().size(), 2U);
}

TEST_F(SoundCard, IsListedByName) {
    SdlDevices devices;
    EXPECT_EQ(devices.names().size(), 1U);
}

TEST_F(SoundCard, IsOpenedByName) {
    SdlDevices devices;
    const auto name = devices.names().at(0);
    std::atomic<std::size_t> pulled{0};
    const auto device = devices.open(name, [&](float* out, std::size_t frames) {
        std::fill_n(out, 2 * frames, 0.0F);
        pulled += frames;
    });
    live.live_until([&] { return pulled > 4800; });
    EXPECT_TRUE(device->is_there());
}

} // namespace
} // namespace sonarelle
