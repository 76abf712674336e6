#pragma once

#include <memory>
#include <tuple>
#include <vector>

#include "air_fixture.h"
#include "live_fixture.h"

namespace sonarelle {

/// The first frame that has something on the right, where the even rows are.
[[nodiscard]] Frames first_on_the_right(const std::vector<float>& heard);

/// A whole station on the air. Its list begins with frame 0, before the output is opened.
struct LiveAirFixture {
    void begin_in_option(int option) {
        live.scheduler.run_event(Frames{}, [this, option] { air.start_in_option(option); });
    }

    /// Presses the main deck's zap button. Gives the last frame on which the next track may begin: one block after the
    /// lead, or after the next block when the handler itself took longer.
    [[nodiscard]] Frames zap();

    std::shared_ptr<ToneTracks> tracks = std::make_shared<ToneTracks>();
    LiveFixture live{tracks};
    AirFixture air{live.clock, live.scheduler, live.media, tracks};
};

/// A list of tracks that begin 14 s before their ends, so that each is loaded 1 s after its beginning and mixed 8 s
/// after it, and a window thread that is held for 5 s across the first mix point.
class HeldRun {
public:
    HeldRun();

    void hold_before_the_mix_point();
    void live_to_the_end();

    /// The frame on which row 2 started.
    [[nodiscard]] Frames start() const { return bench.air.starts().at(1); }

    void expect_start_at_the_end_of_the_hold() const;
    /// The same events as without a hold, each so long after row 2's start as there.
    void expect_the_rehearsal_from_there() const;
    /// The right side sounds from row 2's start on as it does without a hold.
    void expect_rehearsed_sound(const std::vector<float>& heard) const;

    LiveAirFixture bench;

private:
    using Happening = std::tuple<Frames, OnAirEvent::Kind, int, int>; // with its deck and row
    [[nodiscard]] static std::vector<Happening> from_second_start(const AirFixture& air);

    Frames held_from_;
    Frames held_until_;
    Frames rendered_at_start_;
    std::shared_ptr<ToneTracks> tracks_ = std::make_shared<ToneTracks>();
    SoundFixture rehearsal_{tracks_};
    AirFixture rehearsed_{rehearsal_.time, rehearsal_.scheduler, rehearsal_.media, tracks_};
};

} // namespace sonarelle
