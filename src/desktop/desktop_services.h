#pragma once

#include <functional>
#include <memory>
#include <string>

#include "desktop/path_forms.h"
#include "platform/waveform.h"

namespace sonarelle {

class PictureStore;
class UpdateQueue;

/// Runs what the operator did at its instant of the station's time. The one door from the screen to the station.
using RunEvent = std::function<void(const std::function<void()>&)>;

/// The shape of a file's sound, by its path of the station; null until it is known.
using WaveformOf = std::function<std::shared_ptr<const Waveform>(const std::string& path)>;

/// What the windows on the screen share. Its parts outlive the windows.
struct DesktopServices {
    RunEvent run_event;
    UpdateQueue& updates;
    PictureStore& pictures;
    PathForms paths{};
    WaveformOf waveform_of{}; ///< Empty where none are read.
};

} // namespace sonarelle
