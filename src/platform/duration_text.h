#pragma once

#include <string>

#include "platform/numbers.h"

namespace sonarelle {

/// Durations as hh:mm:ss. Both take the way through hundredths of a minute, so that a second may be off by rounding;
/// deck titles and file manager show the same figures everywhere.

/// What the title line of a deck shows. @throws Failure 6 above 32,767 seconds.
[[nodiscard]] std::string format_heure(double duration_in_seconds, DecimalMark mark);

/// What the file manager shows; whole seconds are meant.
[[nodiscard]] std::string formate_duree(double duration_in_seconds, DecimalMark mark);

} // namespace sonarelle
