#pragma once

#include <functional>
#include <memory>

#include "fake_devices.h"
#include "platform/audio/live_driver.h"
#include "platform/audio/live_output.h"
#include "platform/audio/sound_media.h"
#include "platform/timer.h"
#include "sound_fixture.h"

namespace sonarelle {

/// A live station on a fake card.
class LiveFixture {
public:
    explicit LiveFixture(std::shared_ptr<SoundFiles> files = std::make_shared<MachineFiles>())
        : media{clock, bus, std::move(files), [](std::string_view path) { return std::string{path}; },
                Decoding::by_threads} {
        media.on_trouble = [this](const SoundReport& report) { reports.push_back(report); };
    }

    /// On the default card, or on the one of this name; `studio` is the card « Studio ».
    void go_on_air(const std::string& name = "") {
        auto devices = std::make_unique<FakeDevices>(FakeDevices::Cards{{"", card}, {"Studio", studio}});
        output = std::make_unique<LiveOutput>(
            bus, std::move(devices), name,
            [this](OutputState state) {
                last_state = state;
                losses += state == OutputState::paced ? 1 : 0;
            },
            [this](OutputGaps gaps) {
                lost_in_gaps = gaps.lost.count();
                ++times_gaps_were_told;
            });
    }
    /// Lives until a condition holds; the test's own limit of time is the only one.
    void live_until(const std::function<bool()>& condition) {
        while (!condition())
            driver.sleep(std::min<std::chrono::nanoseconds>(driver.poll(), std::chrono::milliseconds{10}));
    }
    void live_for(Frames span) {
        const Frames end = bus.rendered() + span;
        live_until([&] { return bus.rendered() >= end; });
    }
    [[nodiscard]] std::shared_ptr<MediaGraph> graph(const std::string& path) {
        auto made = media.create_graph();
        made->RenderFile(path);
        return made;
    }

    /// What the card got for the left channel of a bus frame.
    [[nodiscard]] float left(Frames frame) const {
        return card->heard().at(2 * static_cast<std::size_t>(frame.count()));
    }

    SoundFolder folder;
    std::atomic<OutputState> last_state{OutputState::opening};
    std::atomic<int> losses{0};                ///< How often the clock took over.
    std::atomic<std::int64_t> lost_in_gaps{0}; ///< Frames, as last told.
    std::atomic<int> times_gaps_were_told{0};
    std::vector<SoundReport> reports;
    Scheduler scheduler;
    ProgrammeBus bus;
    std::shared_ptr<FakeCard> card = std::make_shared<FakeCard>(bus);
    std::shared_ptr<FakeCard> studio = std::make_shared<FakeCard>(bus);
    LiveClock clock{scheduler, bus};
    SoundMedia media;
    LiveDriver driver{scheduler, clock, bus, media};
    std::unique_ptr<LiveOutput> output;
};

/// Three graphs and what happens to them, by ticks of 10 ms: the same live and in virtual time.
class ThreeGraphs {
public:
    static constexpr Frames length = seconds(2);

    ThreeGraphs(Scheduler& scheduler, Media& media, const SoundFolder& folder);
    static void make_files(const SoundFolder& folder);

private:
    void act(int tick);

    Media& media_;
    std::string first_path_;
    std::string second_path_;
    std::shared_ptr<MediaGraph> first_;
    std::shared_ptr<MediaGraph> second_;
    std::shared_ptr<MediaGraph> third_;
    Timer timer_;
    int tick_ = 0;
};

} // namespace sonarelle
