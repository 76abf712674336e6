#pragma once

#include "platform/units.h"

namespace sonarelle {

/// The part of the screen that windows may take, at first that of 1024 by 768 pixels.
struct ScreenArea {
    Twips left{};
    Twips top{};
    Twips width{15360};
    Twips height{11520};
};

} // namespace sonarelle
