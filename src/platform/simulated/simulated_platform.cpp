#include "platform/simulated/simulated_platform.h"

namespace sonarelle {

SimulatedPlatform::SimulatedPlatform(std::string_view program_folder, std::uint64_t seed)
    : random{seed},
      platform{time, scheduler, disk, settings, dialogs, media, random, shell, std::string{program_folder}} {
    platform.screen = [this] { return screen; };
    disk.put_folder(program_folder);
    disk.ChDrive(program_folder);
    disk.ChDir(program_folder);
}

void SimulatedPlatform::add_track(std::string_view path, double seconds) {
    disk.put_file(path, path);
    media.set_length(path, seconds);
}

} // namespace sonarelle
