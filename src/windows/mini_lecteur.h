#pragma once

#include <array>

#include "platform/controls.h"

namespace sonarelle {

/// The small monitor player, which takes the main window's place when the operator reduces it. It has no sound of its
/// own: its commands are those of the main deck.
struct mini_lecteur : Window {
    mini_lecteur()
        : Window{"mini_lecteur"} {
        play.hint = "Lecture";
        next.hint = "Fichier suivant (Z ou S)";
        stop.hint = "Stop (barre espace)";
        show_main_window.hint = "Liste (L)";
        back.hint = "Arrière";
        forward.hint = "Avant";
        answers_space = true;
    }

    GraphicButton play{*this, "Command1"};             ///< Plays.
    GraphicButton next{*this, "Command2"};             ///< Next file.
    GraphicButton stop{*this, "Command3"};             ///< Stops.
    GraphicButton show_main_window{*this, "Command4"}; ///< Back to the main window.
    GraphicButton quit{*this, "Command5"};             ///< Quits.
    GraphicButton back{*this, "Command6"};             ///< A step back.
    GraphicButton forward{*this, "Command7"};          ///< A step forward.
    Label remaining{*this, "label1"};                  ///< Remaining whole seconds of the main deck.
};

} // namespace sonarelle
