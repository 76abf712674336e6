#pragma once

#include <string_view>

#include "platform/scheduler.h"
#include "platform/simulated/simulated_disk.h"
#include "platform/simulated/virtual_time.h"

namespace sonarelle {

inline constexpr std::string_view fuzzed_file = "C:\\titre.mp3";

/// A disk in memory with one file on it.
struct FuzzDisk {
    explicit FuzzDisk(std::string_view bytes) { disk.put_file(fuzzed_file, bytes); }

    Scheduler scheduler;
    VirtualTime clock{scheduler};
    SimulatedDisk disk{clock};
};

} // namespace sonarelle
