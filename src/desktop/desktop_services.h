#pragma once

#include <functional>

#include "desktop/path_forms.h"

namespace sonarelle {

class PictureStore;
class UpdateQueue;

/// Runs what the operator did at its instant of the station's time. The one door from the screen to the station.
using RunEvent = std::function<void(const std::function<void()>&)>;

/// What the windows on the screen share. Its parts outlive the windows.
struct DesktopServices {
    RunEvent run_event;
    UpdateQueue& updates;
    PictureStore& pictures;
    PathForms paths{};
};

} // namespace sonarelle
