#pragma once

#include <functional>
#include <string>

#include "platform/numbers.h"
#include "platform/units.h"

namespace sonarelle {

class Scheduler;

/// A periodic callback of a window. A period is the interval in milliseconds, exact in frames; interval 0 never fires.
/// Switching it on, or giving it another interval, begins a period; setting the same value again does nothing.
/// Lives on the window thread and must not outlive its scheduler.
class Timer {
public:
    /// `number` orders the ticks of one instant: the highest runs first.
    Timer(std::string name, int number, Scheduler& scheduler);
    ~Timer();
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] int number() const { return number_; }

    [[nodiscard]] Integer interval() const { return interval_; }
    void set_interval(Integer milliseconds);

    [[nodiscard]] bool enabled() const { return enabled_; }
    void set_enabled(bool on);
    void enable() { set_enabled(true); }
    void disable() { set_enabled(false); }

    /// Begins the period anew, if the timer runs.
    void restart();

    std::function<void()> on_tick;

private:
    friend class Scheduler;

    [[nodiscard]] bool runs() const { return enabled_ && interval_ > 0; }
    [[nodiscard]] Frames period() const { return milliseconds(interval_.value()); }

    std::string name_;
    int number_;
    Scheduler& scheduler_;
    Integer interval_;
    bool enabled_ = false;
    bool ticking_ = false;
    Frames due_;
};

} // namespace sonarelle
