#pragma once

#include <array>

#include "platform/controls.h"
#include "platform/timer.h"
#include "playout/deck_controls.h"

namespace sonarelle {

class Scheduler;

/// The main window: three decks, the chain's choices, the menus.
struct Antenne_FM : Window {
    explicit Antenne_FM(Scheduler& scheduler);

    /// The parts of deck 1, 2 or 3.
    [[nodiscard]] DeckControls& deck(int number) { return decks[static_cast<std::size_t>(number - 1)]; }

    std::array<DeckControls, 3> decks;

    TextBox Text1{*this, "Text1"};   ///< The overlap in seconds.
    Label Label27{*this, "Label27"}; ///< Stand where the volume sliders are hidden.
    Label Label28{*this, "Label28"};
    Label Label29{*this, "Label29"};

    MenuItem A_def_jingles{*this, "A_def_jingles"};
    MenuItem A_def_musique{*this, "A_def_musique"};
    MenuItem a_editeur_audio{*this, "a_editeur_audio"};
    MenuItem A_visuel_active{*this, "A_visuel_active", "Activer les effets"};
    MenuItem A_visuel_desactive{*this, "A_visuel_desactive", "Désactiver les effets"};
    MenuItem aa_montrer_curseur{*this, "aa_montrer_curseur", "Montrer les curseurs"};
    MenuItem aa_cacher_curseur{*this, "aa_cacher_curseur", "Cacher les curseurs"};
    MenuItem Quitter_{*this, "Quitter_"};

    Timer Timer8; ///< Insertion of jingles by draw.
    Timer Timer9; ///< Insertion of list items by draw.
};

} // namespace sonarelle
