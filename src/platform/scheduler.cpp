#include "platform/scheduler.h"

#include <algorithm>
#include <cassert>
#include <exception>
#include <utility>

#include "platform/timer.h"
#include "platform/window_thread.h"

namespace sonarelle {

namespace {

class TickUnderWay {
public:
    explicit TickUnderWay(bool& ticking)
        : ticking_{ticking} {
        ticking_ = true;
    }
    ~TickUnderWay() { ticking_ = false; }
    TickUnderWay(const TickUnderWay&) = delete;
    TickUnderWay& operator=(const TickUnderWay&) = delete;

private:
    bool& ticking_;
};

} // namespace

Timer::Timer(std::string name, int number, Scheduler& scheduler)
    : name_{std::move(name)},
      number_{number},
      scheduler_{scheduler} {
    scheduler_.add(*this);
}

Timer::~Timer() {
    scheduler_.remove(*this);
}

void Timer::set_interval(Integer interval_in_milliseconds) {
    if (interval_ == interval_in_milliseconds)
        return;
    interval_ = interval_in_milliseconds;
    restart();
}

void Timer::set_enabled(bool on) {
    if (enabled_ == on)
        return;
    enabled_ = on;
    restart();
}

void Timer::restart() {
    if (runs())
        due_ = scheduler_.now() + period();
}

std::optional<Frames> Scheduler::next_due() const {
    const Timer* timer = next_timer();
    return timer == nullptr ? std::nullopt : std::optional{timer->due_};
}

void Scheduler::run_until(Frames horizon) {
    assert(on_window_thread());
    for (Timer* timer = next_timer(); timer != nullptr && timer->due_ <= horizon; timer = next_timer())
        run_tick(*timer);
    advance_to(horizon);
}

void Scheduler::run_event(Frames stamp, const std::function<void()>& event) {
    const Frames horizon = std::max(stamp, now_);
    const std::exception_ptr fault = run_all_until(horizon);
    event();
    if (fault)
        std::rethrow_exception(fault);
}

// Every round passes the tick that failed, whose timer is due later by then.
std::exception_ptr Scheduler::run_all_until(Frames horizon) {
    std::exception_ptr first_fault;
    for (bool reached = false; !reached;) {
        try {
            run_until(horizon);
            reached = true;
        } catch (...) {
            if (!first_fault)
                first_fault = std::current_exception();
        }
    }
    return first_fault;
}

bool Scheduler::in_tick() const {
    return std::ranges::any_of(timers_, [](const Timer* timer) { return timer->ticking_; });
}

void Scheduler::advance_to(Frames frame) {
    now_ = std::max(now_, frame);
}

void Scheduler::add(Timer& timer) {
    timers_.push_back(&timer);
}

void Scheduler::remove(Timer& timer) {
    std::erase(timers_, &timer);
}

Timer* Scheduler::next_timer() const {
    Timer* first = nullptr;
    for (Timer* timer : timers_) {
        if (!timer->runs() || timer->ticking_)
            continue;
        const bool earlier = first == nullptr || timer->due_ < first->due_ ||
                             (timer->due_ == first->due_ && timer->number_ > first->number_);
        if (earlier)
            first = timer;
    }
    return first;
}

// The next due frame is set before the tick, so that what the tick does to its own timer holds. When time went by
// inside the tick (a box was open), the ticks that it would have had meanwhile are left out.
void Scheduler::run_tick(Timer& timer) {
    advance_to(timer.due_);
    const Frames begin = now_;
    timer.due_ += timer.period();
    {
        const TickUnderWay under_way{timer.ticking_};
        if (timer.on_tick)
            timer.on_tick();
    }
    if (now_ > begin && timer.runs())
        while (timer.due_ < now_)
            timer.due_ += timer.period();
}

} // namespace sonarelle
