#pragma once

#include <functional>
#include <string>

#include "platform/row_table.h"
#include "platform/timer.h"

namespace sonarelle {

/// A walk over the rows in search of the next track. When a full turn, or 400 rows of it, finds none, it lets the
/// station go on and takes another turn 100 ms later: a row that is added meanwhile is found, and nothing is held up.
class RowWalk {
public:
    /// Runs a turn that comes later, and takes what it throws.
    using Trap = std::function<void(const std::function<void()>& turn)>;

    RowWalk(std::string name, Scheduler& scheduler, const RowTable& rows, Trap trap);

    /// Looks at the next row; true ends the walk, whatever it came to.
    using Step = std::function<bool()>;
    /// Whether the row that is looked for is still needed, asked before each later turn.
    using Wanted = std::function<bool()>;

    void start(Step step, Wanted wanted);
    [[nodiscard]] bool under_way() const { return static_cast<bool>(step_); }
    void cancel();
    /// Ends this turn; the next one begins 100 ms later with the next row.
    void rest() { rests_ = true; }
    /// Whether the step under way is the first one of its turn.
    [[nodiscard]] bool begins_turn() const { return begins_turn_; }

private:
    void take_a_later_turn();
    void take_a_turn();
    void walk_round();

    const RowTable& rows_;
    Trap trap_;
    Timer pause_;
    bool rests_ = false;
    bool begins_turn_ = false;
    Step step_;
    Wanted wanted_;
};

} // namespace sonarelle
