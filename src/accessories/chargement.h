#pragma once

#include "platform/controls.h"

namespace sonarelle {

/// The splash, on the screen until the main window is.
struct Chargement : Window {
    Chargement()
        : Window{"Chargement"} {
        caption = "Chargement en cours ...";
        on_unload_request = [this] { hide(); };
        width = Twips{7500};
        height = Twips{5250};
        picture.width = width.get() - Twips{100};
        picture.height = height.get() - Twips{490};
    }

    Image picture{*this, "Image1"};
};

} // namespace sonarelle
