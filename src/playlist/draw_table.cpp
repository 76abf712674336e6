#include "playlist/draw_table.h"

#include <cmath>

namespace sonarelle {

namespace {

constexpr int hits_for_each = 100;
constexpr std::size_t most_hits_kept = 1000;

// In single precision the greatest number would round up to one behind the last.
int any_of(NumberRange range, Random& random) {
    return range.first + static_cast<int>(std::trunc(static_cast<double>(random.Rnd()) * range.count));
}

} // namespace

int draw_any(Random& random, NumberRange range) {
    random.Randomize();
    return any_of(range, random);
}

bool DrawTable::bar(int number, int count) {
    const bool renewed = static_cast<int>(entries_.size()) + 1 >= count;
    if (renewed)
        clear();
    add(number);
    return renewed;
}

void DrawTable::add(int number) {
    const auto place = static_cast<std::size_t>(number);
    if (place >= barred_.size())
        barred_.resize(place + 1);
    barred_[place] = true;
    entries_.push_back(number);
}

bool DrawTable::holds(int number) const {
    const auto place = static_cast<std::size_t>(number);
    return place < barred_.size() && barred_[place];
}

void DrawTable::clear() {
    entries_.clear();
    barred_.clear();
}

void DrawTable::begin_anew() {
    const int last = entries_.back();
    clear();
    add(last);
}

Draw DrawTable::draw(NumberRange range) {
    Draw draw;
    try_to_draw(range, draw);
    if (!draw.number && !entries_.empty()) {
        begin_anew();
        try_to_draw(range, draw);
    }
    return draw;
}

void DrawTable::try_to_draw(NumberRange range, Draw& draw) {
    random_.Randomize();
    for (int attempt = 0; attempt < hits_for_each * range.count; ++attempt) {
        const int number = any_of(range, random_);
        if (!holds(number)) {
            draw.number = number;
            return;
        }
        if (draw.hits.size() == most_hits_kept)
            draw.hits.pop_front();
        draw.hits.push_back(number);
        ++draw.hit_count;
    }
}

} // namespace sonarelle
