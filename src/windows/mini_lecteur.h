#pragma once

#include <array>

#include "platform/controls.h"

namespace sonarelle {

/// The small monitor player, which takes the main window's place when the operator reduces it. It has no sound of its
/// own: its commands are those of the main deck.
struct mini_lecteur : Window {
    mini_lecteur() : Window{"mini_lecteur"} {
        Command1.hint = "Lecture";
        Command2.hint = "Fichier suivant (Z ou S)";
        Command3.hint = "Stop (barre espace)";
        Command4.hint = "Liste (L)";
        Command6.hint = "Arrière";
        Command7.hint = "Avant";
        answers_space = true;
    }

    GraphicButton Command1{*this, "Command1"}; ///< Plays.
    GraphicButton Command2{*this, "Command2"}; ///< Next file.
    GraphicButton Command3{*this, "Command3"}; ///< Stops.
    GraphicButton Command4{*this, "Command4"}; ///< Back to the main window.
    GraphicButton Command5{*this, "Command5"}; ///< Quits.
    GraphicButton Command6{*this, "Command6"}; ///< A step back.
    GraphicButton Command7{*this, "Command7"}; ///< A step forward.
    Label label1{*this, "label1"};             ///< Remaining whole seconds of the main deck.
};

} // namespace sonarelle
