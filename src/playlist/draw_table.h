#pragma once

#include <optional>
#include <vector>

#include "platform/random.h"

namespace sonarelle {

/// `count` whole numbers from `first` on.
struct NumberRange {
    int first = 0;
    int count = 0;
};

/// Any number of a range, by one draw. The range isn't empty.
[[nodiscard]] int draw_any(Random& random, NumberRange range);

/// The numbers that were drawn already, and draws that avoid them until there are as many as there are to draw from.
class DrawTable {
public:
    explicit DrawTable(Random& random)
        : random_{random} {}

    /// Bars a number, from 0 on. A table that would be as long as `count` begins anew with this number alone, so that
    /// the first of a new cycle isn't the last of the old one.
    void bar(int number, int count);

    /// Draws until a number isn't barred. After 100 hits for each number the table is begun anew with its last one, and
    /// after as many again there is nothing to draw.
    [[nodiscard]] std::optional<int> draw(NumberRange range);

    [[nodiscard]] bool holds(int number) const;
    /// In the order in which they were barred.
    [[nodiscard]] const std::vector<int>& entries() const { return entries_; }
    void clear();

private:
    void add(int number);
    void begin_anew();
    [[nodiscard]] std::optional<int> try_to_draw(NumberRange range);

    Random& random_;
    std::vector<int> entries_;
    std::vector<bool> barred_; // by number: a cycle of n draws would compare n * n * ln n times otherwise
};

} // namespace sonarelle
