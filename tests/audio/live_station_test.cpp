// Zaps and a held window thread of a whole station on the air.
#include <gtest/gtest.h>

#include "live_air_fixture.h"

namespace sonarelle {
namespace {

void expect_a_zap_within_the_lead(LiveAirFixture& bench) {
    bench.air.open_tracks(3, 200);
    bench.begin_in_option(1);
    bench.live.go_on_air();
    bench.live.live_for(seconds(1));
    const Frames limit = bench.zap();
    bench.live.live_for(milliseconds(500));
    bench.live.output.reset();
    const Frames heard = first_on_the_right(bench.live.card->heard());
    EXPECT_EQ(heard, bench.air.starts().back());
    EXPECT_LE(heard, limit);
}

TEST(LiveStation, HearsAZapWithinTheLeadAndOneBlock) {
    LiveAirFixture bench;
    expect_a_zap_within_the_lead(bench);
}

TEST(LiveStation, HearsAZapWithinTheLeadOnACardThatTakesSeveralBlocksAtOnce) {
    LiveAirFixture bench;
    bench.live.card->block_frames = 2048;
    bench.live.card->blocks_at_once = 3;
    expect_a_zap_within_the_lead(bench);
}

TEST(LiveStation, HeldBeforeAMixPointStartsTheNextTrackAtItsEndAndTheRunGoesOnFromThere) {
    HeldRun run;
    run.bench.live.go_on_air();
    run.hold_before_the_mix_point();
    run.live_to_the_end();
    run.bench.live.output.reset();
    run.expect_start_at_the_end_of_the_hold();
    run.expect_the_rehearsal_from_there();

    const std::vector<float> heard = run.bench.live.card->heard();
    EXPECT_EQ(first_on_the_right(heard), run.start());
    run.expect_rehearsed_sound(heard);
}

} // namespace
} // namespace sonarelle
