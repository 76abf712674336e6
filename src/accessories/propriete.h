#pragma once

#include <array>

#include "platform/controls.h"
#include "platform/timer.h"

namespace sonarelle {

class Scheduler;

/// The properties of one row of the list, and a small player with which its start and end are set by ear.
struct Propriete : Window {
    explicit Propriete(Scheduler& scheduler);

    static constexpr int bar_units = 223;
    static constexpr int position_interval = 1000; ///< Milliseconds.

    Label Label1{*this, "Label1", "Nom du fichier"};
    Label Label2{*this, "Label2"}; ///< The file's name; it can't be typed over.
    Label Label3{*this, "Label3", "Début lecture piste"};
    TextBox Text1{*this, "Text1"};
    Label Label4{*this, "Label4", "Fin de piste"};
    TextBox Text2{*this, "Text2"};
    Label Label5{*this, "Label5", "Genre "};
    TextBox Text3{*this, "Text3"};
    Label Label6{*this, "Label6", "Volume"};
    TextBox Text4{*this, "Text4"};
    Label Label7{*this, "Label7", "Durée piste"};
    TextBox Text5{*this, "Text5"};

    Label play{*this, "Label8", "Lecture"};
    Label mark_start{*this, "Label9", "Début"};
    Label mark_end{*this, "Label10", "Fin"};
    Label stop{*this, "Label11", "Stop"};
    Label start_back{*this, "Label12", "<"};
    Label start_forward{*this, "Label13", ">"};
    Label end_back{*this, "Label14", "<"};
    Label end_forward{*this, "Label15", ">"};
    ProgressBar ProgressBar1{*this, "ProgressBar1"};

    Button AnyButton1{*this, "AnyButton1", "Fermer"};
    Button AnyButton2{*this, "AnyButton2", "Sauvegarder"};

    Timer Timer1; ///< Moves the progress bar.
    Timer Timer2; ///< Copies the position into the start.
    Timer Timer3; ///< Copies the position into the end.

    /// The labels that act as buttons.
    [[nodiscard]] std::array<Label*, 8> actions() {
        return {&play, &mark_start, &mark_end, &stop, &start_back, &start_forward, &end_back, &end_forward};
    }
    [[nodiscard]] std::array<Timer*, 3> timers() { return {&Timer1, &Timer2, &Timer3}; }
};

} // namespace sonarelle
