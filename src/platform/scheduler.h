#pragma once

#include <exception>
#include <functional>
#include <optional>
#include <vector>

#include "platform/units.h"

namespace sonarelle {

class Timer;

/// Runs the ticks of the station's timers in the order of their due frames. It has no clock of its own: a driver
/// (live or virtual) tells how far time has come. Ticks of one instant run from the highest timer number to the lowest,
/// and an operator's event of that instant comes after them. Everything happens on the window thread.
class Scheduler {
public:
    Scheduler() = default;
    Scheduler(const Scheduler&) = delete;
    Scheduler& operator=(const Scheduler&) = delete;

    /// During a tick its due frame; otherwise the last instant that was reached.
    [[nodiscard]] Frames now() const { return now_; }

    /// The due frame of the next tick that may run, if any timer runs.
    [[nodiscard]] std::optional<Frames> next_due() const;

    /// Runs every tick that is due at `horizon` or before, each with its own due frame as now. Afterwards now stands at
    /// `horizon`, or later if it was there already. May be called again from within a tick (a box is open, the chain
    /// yields): the timers whose ticks are under way stand still then, and their missed ticks are left out.
    void run_until(Frames horizon);

    /// Runs what the operator did at `stamp` (never below the last tick run), after the ticks due by then. A tick that
    /// throws costs neither the other ticks nor the event: its exception goes on when the event has run.
    void run_event(Frames stamp, const std::function<void()>& event);

    /// Whether a tick is under way, which must not wait for the operator.
    [[nodiscard]] bool in_tick() const;

    /// Moves now forward within a tick or event. An earlier frame does nothing.
    void advance_to(Frames frame);

private:
    friend class Timer;

    void add(Timer& timer);
    void remove(Timer& timer);
    [[nodiscard]] Timer* next_timer() const;
    void run_tick(Timer& timer);
    /// Runs them past any that throw; the first of their exceptions, or none.
    [[nodiscard]] std::exception_ptr run_all_until(Frames horizon);

    std::vector<Timer*> timers_;
    Frames now_;
};

} // namespace sonarelle
