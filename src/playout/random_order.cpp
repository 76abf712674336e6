#include "playout/random_order.h"

#include <algorithm>

namespace sonarelle {

int RandomOrder::draw(int playing_row, int rows) {
    random_.Randomize();
    if (static_cast<int>(deja_lu_.size()) + 1 >= rows)
        deja_lu_.clear();
    deja_lu_.push_back(playing_row);
    for (int attempt = 0; attempt < 100 * rows; ++attempt) {
        random_.Randomize();
        // In single precision the greatest number would round up to a row behind the last one.
        const int row = static_cast<int>(Fix(static_cast<double>(random_.Rnd()) * rows + 1));
        if (std::ranges::find(deja_lu_, row) == deja_lu_.end())
            return row;
    }
    return 0;
}

} // namespace sonarelle
