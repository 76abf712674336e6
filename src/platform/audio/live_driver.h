#pragma once

#include <atomic>
#include <chrono>
#include <deque>
#include <functional>

#include "platform/audio/live_clock.h"
#include "platform/audio/pace_estimate.h"
#include "platform/audio/programme_bus.h"
#include "platform/scheduler.h"
#include "platform/thread_annotations.h"

namespace sonarelle {

class SoundMedia;

/// Lets the station live one lead ahead of the bus: runs each tick as soon as its due frame is within the lead, and
/// what the operator does at rendered + lead. Between them the window thread sleeps; nothing polls.
///
/// Two ways to use it: `run` is the whole loop of a program without a screen; a toolkit's loop calls `poll` when the
/// time that it returned is over or `wake_descriptor` is readable, and sets `sleep` to a nested loop of its own.
/// Everything is called from the window thread unless it says otherwise.
class LiveDriver {
public:
    LiveDriver(Scheduler& scheduler, LiveClock& clock, ProgrammeBus& bus, SoundMedia& media);
    ~LiveDriver();
    LiveDriver(const LiveDriver&) = delete;
    LiveDriver& operator=(const LiveDriver&) = delete;

    /// How far the station is ahead: 50 ms, or as far as the output's bursts reach.
    [[nodiscard]] Frames lead() const;

    /// Runs what is due and what was posted. Returns how long nothing will be due, as far as can be told now.
    std::chrono::nanoseconds poll();

    /// Runs an operator's event now: after the ticks due by rendered + lead, which is now in the handler.
    void run_event(const std::function<void()>& event);

    /// The same from the next poll, in the order of the calls. From any thread.
    void post(std::function<void()> event);

    /// Polls and sleeps until `stop`.
    void run();
    /// Ends `run` and every wait. From any thread and from a signal's handler.
    void stop() noexcept;
    [[nodiscard]] bool is_stopped() const { return stopped_.load(std::memory_order_acquire); }

    /// Readable when something was posted.
    [[nodiscard]] int wake_descriptor() const { return wake_; }

    /// Sleeps for at most this long, less if something was posted; no time at all runs what waits in a toolkit's loop.
    /// At first: the thread sleeps.
    std::function<void(std::chrono::nanoseconds)> sleep;

private:
    [[nodiscard]] Frames horizon() const { return bus_.rendered() + lead(); }
    [[nodiscard]] bool take_posted(std::function<void()>& event);
    [[nodiscard]] std::chrono::nanoseconds time_until(Frames frame);
    void wait_until(Frames frame);
    void run_pending();
    void sleep_on_descriptor(std::chrono::nanoseconds time) const;
    void wake() const noexcept;

    Scheduler& scheduler_;
    LiveClock& clock_;
    ProgrammeBus& bus_;
    SoundMedia& media_;
    PaceEstimate pace_;
    int wake_;
    std::atomic<bool> stopped_{false};

    Mutex mutex_;
    std::deque<std::function<void()>> posted_ SONARELLE_GUARDED_BY(mutex_);
};

} // namespace sonarelle
