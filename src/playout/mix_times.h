#pragma once

#include "platform/numbers.h"
#include "state/station_settings.h"

namespace sonarelle {

/// How long a track overlaps the one behind it, and how far ahead of that the next one is loaded, seconds.
struct MixTimes {
    Integer overlap;
    Integer load_lead;
    bool is_normal = false; ///< No short item, as jingles are.
};

/// Those of a track that plays to its second `end`, as the settings have them.
[[nodiscard]] MixTimes mix_times(const StationSettings& settings, Integer end);

} // namespace sonarelle
