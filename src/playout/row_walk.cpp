#include "playout/row_walk.h"

#include <algorithm>
#include <utility>

namespace sonarelle {

namespace {

constexpr int longest_turn = 400; // rows; their disk may have to say of each that it isn't there

} // namespace

RowWalk::RowWalk(std::string name, Scheduler& scheduler, const RowTable& rows, Trap trap)
    : rows_{rows},
      trap_{std::move(trap)},
      pause_{std::move(name), 0, scheduler} {
    pause_.set_interval(100);
    pause_.on_tick = [this] { take_a_later_turn(); };
}

void RowWalk::start(Step step, Wanted wanted) {
    step_ = std::move(step);
    wanted_ = std::move(wanted);
    take_a_turn();
}

void RowWalk::cancel() {
    pause_.disable();
    step_ = {};
}

void RowWalk::take_a_later_turn() {
    if (wanted_())
        trap_([this] { take_a_turn(); });
    else
        cancel();
}

// A step that fails ends the walk: the next one must not find it still under way.
void RowWalk::take_a_turn() {
    try {
        walk_round();
    } catch (...) {
        cancel();
        throw;
    }
}

// The step is kept alive by the copy: what it starts may cancel the walk.
void RowWalk::walk_round() {
    const Step step = step_;
    if (rows_.count() == 0) // the operator changes the list
        return pause_.enable();
    const int rows = std::min(rows_.count(), longest_turn);
    rests_ = false;
    for (int row = 0; row < rows && step_ && !rests_; ++row) {
        begins_turn_ = row == 0;
        if (step())
            return cancel();
    }
    if (step_)
        pause_.enable();
}

} // namespace sonarelle
