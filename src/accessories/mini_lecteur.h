#pragma once

#include "platform/window.h"

namespace sonarelle {

/// The small monitor player.
struct mini_lecteur : Window {
    mini_lecteur() : Window{"mini_lecteur"} {}
};

} // namespace sonarelle
