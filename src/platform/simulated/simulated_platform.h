#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "platform/scheduler.h"
#include "platform/simulated/scripted_dialogs.h"
#include "platform/simulated/scripted_random.h"
#include "platform/simulated/simulated_disk.h"
#include "platform/simulated/simulated_media.h"
#include "platform/simulated/simulated_settings.h"
#include "platform/simulated/simulated_shell.h"
#include "platform/simulated/virtual_time.h"

namespace sonarelle {

/// A whole machine in virtual time. The program's folder is there and is the current one; the random numbers are those
/// of one seed. `platform` refers to the parts, which stay where they are.
struct SimulatedPlatform {
    explicit SimulatedPlatform(std::string_view program_folder = "C:\\Sonarelle", std::uint64_t seed = 1);
    SimulatedPlatform(const SimulatedPlatform&) = delete;
    SimulatedPlatform& operator=(const SimulatedPlatform&) = delete;

    /// Puts a file that plays so long on the disk.
    void add_track(std::string_view path, double seconds);
    void run_for(Frames span) { time.run_for(span); }

    Scheduler scheduler;
    VirtualTime time{scheduler};
    SimulatedDisk disk{time};
    SimulatedSettings settings;
    ScriptedDialogs dialogs{time};
    SimulatedMedia media{time, disk};
    ScriptedRandom random;
    SimulatedShell shell;
    ScreenArea screen;
    Platform platform;
};

} // namespace sonarelle
