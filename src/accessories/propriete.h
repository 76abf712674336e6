#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

#include "platform/controls.h"
#include "platform/timer.h"

namespace sonarelle {

class Scheduler;

/// The properties of one row of the list, and a small player with which its start and end are set by ear.
struct Propriete : Window {
    explicit Propriete(Scheduler& scheduler);

    static constexpr int bar_units = 223;
    static constexpr int position_interval = 1000; ///< Milliseconds.

    Label name_label{*this, "Label1", "Nom du fichier"};
    Label file_name{*this, "Label2"}; ///< The file's name; it can't be typed over.
    Label start_label{*this, "Label3", "Début lecture piste"};
    TextBox start{*this, "Text1"};
    Label end_label{*this, "Label4", "Fin de piste"};
    TextBox end{*this, "Text2"};
    Label genre_label{*this, "Label5", "Genre "};
    TextBox genre{*this, "Text3"};
    Label volume_label{*this, "Label6", "Volume"};
    TextBox volume{*this, "Text4"};
    Label length_label{*this, "Label7", "Durée piste"};
    TextBox length{*this, "Text5"};

    Label play{*this, "Label8", "Lecture"};
    Label mark_start{*this, "Label9", "Début"};
    Label mark_end{*this, "Label10", "Fin"};
    Label stop{*this, "Label11", "Stop"};
    Label start_back{*this, "Label12", "<"};
    Label start_forward{*this, "Label13", ">"};
    Label end_back{*this, "Label14", "<"};
    Label end_forward{*this, "Label15", ">"};
    ProgressBar bar{*this, "ProgressBar1"};

    Button close{*this, "AnyButton1", "Fermer"};
    Button save{*this, "AnyButton2", "Sauvegarder"};
    Label modified{*this, "modified", "modifié"}; ///< Seen while the fields say anything else than the record.

    Property<std::string> path{*this, {}}; ///< The row's file.
    /// Where the marks stand, in seconds of the file; nothing for a field that holds no number.
    Property<std::optional<double>> start_mark{*this, {}};
    Property<std::optional<double>> end_mark{*this, {}};
    /// The operator moves a mark on the picture of the sound to a second of the file.
    std::function<void(double)> on_start_moved;
    std::function<void(double)> on_end_moved;

    Timer progress_timer; ///< Moves the progress bar.
    Timer start_timer;    ///< Copies the position into the start.
    Timer end_timer;      ///< Copies the position into the end.

    /// The labels that act as buttons.
    [[nodiscard]] std::array<Label*, 8> actions() {
        return {&play, &mark_start, &mark_end, &stop, &start_back, &start_forward, &end_back, &end_forward};
    }
    [[nodiscard]] std::array<Timer*, 3> timers() { return {&progress_timer, &start_timer, &end_timer}; }
};

} // namespace sonarelle
