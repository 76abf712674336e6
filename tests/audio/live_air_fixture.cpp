#include "live_air_fixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>

namespace sonarelle {

namespace {

constexpr int track_length = 100;
constexpr double track_start = 86;
constexpr Frames mix_point = seconds(8); // from the start of a track
constexpr Frames followed = seconds(11); // from the start of row 2 on

float right_of(const std::vector<float>& heard, Frames frame) {
    return heard.at(static_cast<std::size_t>(2 * frame.count() + 1));
}

} // namespace

Frames first_on_the_right(const std::vector<float>& heard) {
    std::size_t sample = 1;
    while (sample < heard.size() && heard[sample] == 0.0F)
        sample += 2;
    return Frames{static_cast<std::int64_t>(sample / 2)};
}

Frames LiveAirFixture::zap() {
    const Frames block = live.bus.greatest_block();
    const Frames by_the_lead = live.bus.rendered() + live.driver.lead() + block;
    live.driver.run_event(
        [this] { air.station.main_window.deck(air.station.chain.lecteur_en_cours.value()).zap.click(); });
    return std::max(by_the_lead, live.bus.rendered() + block + block);
}

HeldRun::HeldRun() {
    bench.air.open_tracks(4, track_length, track_start);
    bench.begin_in_option(3);
    rehearsed_.open_tracks(4, track_length, track_start);
    rehearsed_.start_in_option(3);
    rehearsal_.run_for(mix_point + followed);
}

void HeldRun::hold_before_the_mix_point() {
    bench.live.live_until([this] { return bench.live.bus.rendered() >= mix_point - milliseconds(500); });
    held_from_ = bench.live.bus.rendered();
    while (bench.live.bus.rendered() < held_from_ + seconds(5))
        std::this_thread::sleep_for(std::chrono::milliseconds{5});
    held_until_ = bench.live.bus.rendered();
    bench.live.live_until([this] { return bench.air.starts().size() > 1; });
    rendered_at_start_ = bench.live.bus.rendered();
}

void HeldRun::live_to_the_end() {
    bench.live.live_until([this] { return bench.live.bus.rendered() >= start() + followed + seconds(1); });
}

void HeldRun::expect_start_at_the_end_of_the_hold() const {
    ASSERT_LT(held_from_, mix_point);
    EXPECT_GE(start(), held_until_);
    EXPECT_LE(start(), rendered_at_start_ + bench.live.bus.greatest_block());
}

std::vector<HeldRun::Happening> HeldRun::from_second_start(const AirFixture& air) {
    const Frames begin = air.starts().at(1);
    std::vector<Happening> happenings;
    for (const auto& [at, event] : air.events)
        if (at >= begin && at < begin + followed)
            happenings.emplace_back(at - begin, event.kind, event.deck, event.row);
    return happenings;
}

void HeldRun::expect_the_rehearsal_from_there() const {
    EXPECT_EQ(rehearsed_.starts(), (std::vector{Frames{}, mix_point, mix_point + mix_point}));
    EXPECT_EQ(from_second_start(bench.air), from_second_start(rehearsed_));
}

void HeldRun::expect_rehearsed_sound(const std::vector<float>& heard) const {
    for (Frames frame; frame < followed; frame += Frames{1})
        ASSERT_EQ(right_of(heard, start() + frame), right_of(rehearsal_.heard, mix_point + frame)) << frame.count();
}

} // namespace sonarelle
