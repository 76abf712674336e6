#include "platform/audio/live_clock.h"

#include <chrono>
#include <ctime>

namespace sonarelle {

CalendarTime LiveClock::calendar() const {
    const std::chrono::milliseconds ahead{(now() - bus_.rendered()).count() / frames_per_millisecond};
    const std::time_t heard = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now() + ahead);
    std::tm local{};
    localtime_r(&heard, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

void LiveClock::wait(Frames span) {
    if (run_until)
        run_until(now() + span);
}

void LiveClock::yield() {
    if (run_pending)
        run_pending();
}

} // namespace sonarelle
