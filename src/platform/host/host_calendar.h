#pragma once

#include "platform/clock.h"

namespace sonarelle {

/// This machine's date and time, in the operator's time zone.
[[nodiscard]] CalendarTime host_calendar();

} // namespace sonarelle
