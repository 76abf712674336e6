#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "accessories/propriete.h"
#include "platform/media.h"
#include "platform/platform.h"
#include "playlist/enreg_liste.h"
#include "playlist/list_at_work.h"
#include "playlist/record_reading.h"
#include "state/list_state.h"
#include "state/station_settings.h"

namespace sonarelle {

/// The window of a row's properties at work: it plays the row's file on a graph of its own, lets the operator mark
/// start and end, and writes the row back. Window thread.
class TrackProperties {
public:
    TrackProperties(const Platform& platform, const StationSettings& settings, const ListState& state,
                    Propriete& window, ListAtWork& list, RecordReading& reading);

    /// Fills the window from the selected row's record, and shows it. Nothing while the list is empty.
    void a_modif();

private:
    /// The two places of a row that are set by ear: their field, the timer that copies the position into it, and
    /// whether a pause holds the position there.
    struct Mark {
        TextBox& field;
        Timer& timer;
        bool paused = false;
    };

    void connect_actions();
    void connect_picture();
    void connect_looks();
    void on_press(Label& label, std::function<void()> act);

    [[nodiscard]] bool fill_finds_a_volume(int row);
    void forget_file();
    void play();
    void stop();
    void press_mark(Mark& mark);
    void press_start();
    void press_end();
    void step(const Mark& mark, double seconds);
    void step_back(const Mark& mark);
    void show_position(const Mark& mark);
    void show_progress();

    void tell_place(int x);
    void go_to_place(int x);

    void move_start(double second);
    void move_end(double second);
    void put(const Mark& mark, double second);
    void show_changes();

    void save();
    void write_row();
    [[nodiscard]] std::optional<enreg_liste> row_to_write() const;
    [[nodiscard]] enreg_liste edited_row() const;
    void close();

    void restore_colours();
    /// @throws Failure 91 before the first "Lecture".
    [[nodiscard]] MediaGraph& graph() const;

    const Platform& platform_;
    const StationSettings& settings_;
    const ListState& state_;
    Propriete& window_;
    ListAtWork& list_;
    RecordReading& reading_;

    Mark start_;
    Mark end_;
    std::shared_ptr<MediaGraph> graph_;
    Integer row_;                      ///< The row's number. The chain reads other records meanwhile.
    bool changed_ = false;             ///< It was saved.
    std::optional<enreg_liste> saved_; ///< The row as the list has it; nothing where the fields can't be written.
};

} // namespace sonarelle
