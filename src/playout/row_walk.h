#pragma once

#include <functional>
#include <string>

#include "platform/timer.h"

namespace sonarelle {

/// A walk over the rows in search of the next track. When a full turn, or 400 rows of it, finds none, it lets the
/// station go on and takes another turn 100 ms later: a row that is added meanwhile is found, and nothing is held up.
class RowWalk {
public:
    RowWalk(std::string name, Scheduler& scheduler);

    /// Looks at the next row; true ends the walk, whatever it came to.
    using Step = std::function<bool()>;

    /// Who still needs the row: no, and a later turn ends the walk.
    using Wanted = std::function<bool()>;

    /// Walks on with `step`. `turn` says how many rows a full turn has.
    void start(Step step, std::function<int()> turn, Wanted wanted,
               std::function<void(const std::function<void()>&)> trap);
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

    Timer pause_;
    bool rests_ = false;
    bool begins_turn_ = false;
    Step step_;
    std::function<int()> turn_;
    Wanted wanted_;
    std::function<void(const std::function<void()>&)> trap_;
};

} // namespace sonarelle
