#pragma once

#include <string>

#include "platform/platform.h"

namespace sonarelle {

/// The date as dd/mm/yyyy and the time as hh:mm:ss.
[[nodiscard]] std::string date_text(const Platform& platform);
[[nodiscard]] std::string time_text(const Platform& platform);
/// Date, " - ", time: how a line of the journal begins.
[[nodiscard]] std::string date_and_time(const Platform& platform);

} // namespace sonarelle
