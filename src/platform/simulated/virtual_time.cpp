#include "platform/simulated/virtual_time.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace sonarelle {

VirtualTime::VirtualTime(Scheduler& scheduler, CalendarTime start)
    : scheduler_{scheduler},
      start_{start} {}

CalendarTime VirtualTime::calendar() const {
    using namespace std::chrono;
    const auto first_day = sys_days{year{start_.year} / start_.month / start_.day};
    const auto time = first_day + hours{start_.hour} + minutes{start_.minute} +
                      std::chrono::seconds{start_.second + now().count() / frame_rate};
    const auto today = floor<days>(time);
    const year_month_day date{today};
    const hh_mm_ss clock{time - today};
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            static_cast<int>(clock.hours().count()),
            static_cast<int>(clock.minutes().count()),
            static_cast<int>(clock.seconds().count())};
}

void VirtualTime::advance_to(Frames heard) {
    if (heard <= now())
        return;
    reach(heard);
    scheduler_.advance_to(heard);
}

void VirtualTime::run_until(Frames horizon) {
    while (step(horizon)) {
    }
    reach(horizon);
    scheduler_.run_until(horizon);
}

void VirtualTime::event(const std::function<void()>& gesture) {
    scheduler_.run_event(now(), gesture);
}

void VirtualTime::at(Frames frame, std::function<void()> gesture) {
    gestures_.emplace(frame, std::move(gesture));
}

/// Runs the ticks of the next instant up to `horizon`, or else its first gesture; false when there is neither.
bool VirtualTime::step(Frames horizon) {
    const auto due = scheduler_.next_due();
    const auto gesture = gestures_.begin();
    const bool has_gesture = gesture != gestures_.end() && gesture->first <= horizon;
    if (due && *due <= horizon && !(has_gesture && gesture->first < *due)) {
        reach(*due);
        scheduler_.run_until(*due);
        return true;
    }
    if (!has_gesture)
        return false;
    // Out of the queue first: a box that the gesture opens lets the later ones come.
    const auto taken = gestures_.extract(gesture);
    reach(taken.key());
    scheduler_.run_event(taken.key(), taken.mapped());
    return true;
}

void VirtualTime::reach(Frames frame) {
    if (before_instant)
        before_instant(std::max(frame, now()));
}

} // namespace sonarelle
