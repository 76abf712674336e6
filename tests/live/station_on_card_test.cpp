// A whole station on a real sound server.
#include <gtest/gtest.h>

#include "audio/live_air_fixture.h"
#include "platform/audio/sdl_devices.h"
#include "pulse_server.h"

namespace sonarelle {
namespace {

class StationOnCard : public testing::Test {
protected:
    StationOnCard() {
        SdlDevices::ask_for_large_buffers();
        server.start();
    }

    static void go_on_air(LiveFixture& live) {
        live.output = std::make_unique<LiveOutput>(live.bus, std::make_unique<SdlDevices>(), "",
                                                   [&live](OutputState state) { live.last_state = state; });
    }
    // What was recorded of the programme, in which some track always sounds; a late server's own silence is left out.
    [[nodiscard]] std::vector<float> programme() {
        server.stop_recording();
        const std::vector<float> recorded = recorded_floats(file);
        std::vector<float> sounding;
        for (std::size_t sample = 0; sample + 1 < recorded.size(); sample += 2)
            if (recorded[sample] != 0.0F || recorded[sample + 1] != 0.0F)
                sounding.insert(sounding.end(), {recorded[sample], recorded[sample + 1]});
        return sounding;
    }

    SoundFolder folder;
    PulseServer server{folder.path("pulse")};
    std::string file = folder.path("air.raw");
};

TEST_F(StationOnCard, HearsAZapWithinTheLeadAndOneBlock) {
    LiveAirFixture bench;
    bench.air.open_tracks(3, 200);
    bench.begin_in_option(1);
    server.record(file);
    go_on_air(bench.live);
    bench.live.live_for(seconds(1));
    const Frames limit = bench.zap();
    bench.live.live_for(seconds(2));
    const Frames heard = first_on_the_right(programme());
    EXPECT_EQ(heard, bench.air.starts().back());
    EXPECT_LE(heard, limit);
}

TEST_F(StationOnCard, HeldBeforeAMixPointStartsTheNextTrackAtItsEndAndTheRunGoesOnFromThere) {
    HeldRun run;
    server.record(file);
    go_on_air(run.bench.live);
    run.hold_before_the_mix_point();
    run.live_to_the_end();
    run.expect_start_at_the_end_of_the_hold();
    run.expect_the_rehearsal_from_there();
    EXPECT_EQ(first_on_the_right(programme()), run.start());
}

} // namespace
} // namespace sonarelle
