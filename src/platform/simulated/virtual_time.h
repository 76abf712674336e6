#pragma once

#include <functional>
#include <map>

#include "platform/clock.h"
#include "platform/scheduler.h"
#include "platform/units.h"

namespace sonarelle {

/// The station's time driven by a loop: it passes as fast as the work of its instants is done, and nothing sleeps.
/// The calendar begins at `start` when now is 0.
class VirtualTime : public Clock {
public:
    explicit VirtualTime(Scheduler& scheduler, CalendarTime start = {2026, 1, 5, 6, 0, 0});

    [[nodiscard]] Frames now() const override { return scheduler_.now(); }
    [[nodiscard]] CalendarTime calendar() const override;
    void advance_to(Frames heard) override;
    void wait(Frames span) override { run_until(now() + span); }
    void yield() override { run_until(now()); }

    /// Runs everything that falls into the span, its end included.
    void run_for(Frames span) { run_until(now() + span); }
    void run_until(Frames horizon);

    /// What the operator does now: after the ticks of this instant.
    void event(const std::function<void()>& gesture);
    /// What the operator will do at `frame`, after the ticks of that instant; gestures of one frame keep their order.
    /// One whose frame has passed comes with the next run.
    void at(Frames frame, std::function<void()> gesture);

    /// Called before anything happens at a frame, with that frame: a renderer makes the sound up to there.
    std::function<void(Frames)> before_instant;

private:
    [[nodiscard]] bool step(Frames horizon);
    void reach(Frames frame);

    Scheduler& scheduler_;
    CalendarTime start_;
    std::multimap<Frames, std::function<void()>> gestures_;
};

} // namespace sonarelle
