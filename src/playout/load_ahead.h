#pragma once

#include "playout/desk.h"
#include "playout/journal.h"
#include "playout/row_cursor.h"
#include "playout/row_walk.h"
#include "playout/run_control.h"

namespace sonarelle {

/// Loads the next row some seconds before it is needed, and counts the remaining time of the list window down.
class LoadAhead {
public:
    LoadAhead(Desk& desk, RowCursor& cursor, RunControl& run, Journal& journal);

    /// Each second while the load step is on.
    void tick();
    /// Counts the remaining time of the list window down by a second.
    void compteur();
    /// Ends the walk that looks for a row to load.
    void cancel() { walk_.cancel(); }

private:
    [[nodiscard]] bool loads_ahead() const;
    [[nodiscard]] bool is_due() const;
    void look();
    void leave();
    [[nodiscard]] bool try_to_load_next();
    [[nodiscard]] bool take_row();
    /// Whether the current row's file is there, as far as can be seen; and its load onto the next deck. A row that
    /// fails is removed or passed over.
    [[nodiscard]] bool is_file_there();
    [[nodiscard]] bool load_row(const DestinationRecord& row);
    [[nodiscard]] Deck& next_on_the_ring() const;
    void show_loaded();
    void pass_over(std::string_view why);
    void drop_invalid_row();
    void stop_after_load_error();

    Desk& desk_;
    RowCursor& cursor_;
    RunControl& run_;
    Journal& journal_;
    RowWalk walk_;
};

} // namespace sonarelle
