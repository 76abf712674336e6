#include "playlist/draw_table.h"

#include <cmath>

namespace sonarelle {

namespace {

constexpr int hits_for_each = 100;

// In single precision the greatest number would round up to one behind the last.
int any_of(NumberRange range, Random& random) {
    return range.first + static_cast<int>(std::trunc(static_cast<double>(random.Rnd()) * range.count));
}

} // namespace

int draw_any(Random& random, NumberRange range) {
    random.Randomize();
    return any_of(range, random);
}

void DrawTable::bar(int number, int count) {
    if (static_cast<int>(entries_.size()) + 1 >= count)
        clear();
    add(number);
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

std::optional<int> DrawTable::draw(NumberRange range) {
    std::optional<int> number = try_to_draw(range);
    if (!number && !entries_.empty()) {
        begin_anew();
        number = try_to_draw(range);
    }
    return number;
}

std::optional<int> DrawTable::try_to_draw(NumberRange range) {
    random_.Randomize();
    for (int attempt = 0; attempt < hits_for_each * range.count; ++attempt) {
        const int number = any_of(range, random_);
        if (!holds(number))
            return number;
    }
    return std::nullopt;
}

} // namespace sonarelle
