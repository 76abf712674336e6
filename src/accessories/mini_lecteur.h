#pragma once

#include "platform/controls.h"

namespace sonarelle {

/// The small monitor player.
struct mini_lecteur : Window {
    mini_lecteur() : Window{"mini_lecteur"} {}

    Label remaining{*this, "Label2"}; ///< Remaining whole seconds of the main deck.
    Button zap{*this, "bouton_zap"};
};

} // namespace sonarelle
