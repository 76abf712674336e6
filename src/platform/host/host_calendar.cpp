#include "platform/host/host_calendar.h"

#include <ctime>

namespace sonarelle {

CalendarTime host_calendar() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

} // namespace sonarelle
