#pragma once

#include <string>
#include <string_view>

#include "platform/scheduler.h"
#include "platform/simulated/scripted_dialogs.h"
#include "platform/simulated/simulated_disk.h"
#include "platform/simulated/virtual_time.h"

namespace sonarelle {

inline constexpr std::string_view song = "C:\\Musique\\titre.mp3";

/// A disk with one song on it, and an operator in front.
struct MusicDisk {
    MusicDisk() = default;
    explicit MusicDisk(std::string_view bytes) { disk.put_file(song, bytes); }

    [[nodiscard]] std::string song_bytes() const { return disk.bytes(song); }

    Scheduler scheduler;
    VirtualTime clock{scheduler};
    SimulatedDisk disk{clock};
    ScriptedDialogs dialogs{clock};
};

/// Bytes of a size that nothing takes for a tag or a frame.
inline std::string audio_of(std::size_t size) {
    return std::string(size, 'a');
}

} // namespace sonarelle
