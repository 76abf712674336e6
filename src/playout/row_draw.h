#pragma once

#include <optional>
#include <vector>

#include "playlist/draw_table.h"
#include "playout/artist_spacing.h"
#include "playout/desk.h"
#include "playout/draw_control.h"
#include "playout/journal.h"

namespace sonarelle {

/// Where random order draws a row. The log has words of its own for each.
enum class DrawPlace { load_step, list_chain, zap };

/// The draw of random order: a row that it hasn't played in this cycle.
class RowDraw {
public:
    RowDraw(Desk& desk, Journal& journal, DrawTables& tables, DrawControl& control)
        : desk_{desk},
          journal_{journal},
          tables_{tables},
          control_{control} {}

    /// Bars the current row and draws another one; nothing when there is none.
    [[nodiscard]] std::optional<int> draw(DrawPlace place);
    /// The current row has stopped the list: it doesn't come again in this cycle.
    void bar_current_row();

private:
    [[nodiscard]] int rows_to_draw() const;
    void count_null_draws(int hits);
    void report(int row, std::vector<PassedOver> passed_over, int rows) const;

    Desk& desk_;
    Journal& journal_;
    DrawTables& tables_;
    DrawControl& control_;
    ArtistSpacing spacing_{desk_};
};

} // namespace sonarelle
