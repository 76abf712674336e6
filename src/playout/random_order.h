#pragma once

#include <vector>

#include "platform/numbers.h"
#include "platform/random.h"

namespace sonarelle {

/// Draws the next row and avoids those already played, until their table is as long as the list.
class RandomOrder {
public:
    explicit RandomOrder(Random& random)
        : random_{random} {}

    /// Bars the row that plays now and draws another one. Returns 0 when a full turn of draws hit barred rows alone.
    [[nodiscard]] int draw(int playing_row, int rows);

private:
    Random& random_;
    std::vector<int> deja_lu_;
};

} // namespace sonarelle
