#pragma once

#include <deque>
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

/// What a draw came to.
struct Draw {
    std::optional<int> number; ///< Nothing where all have been drawn already.
    std::deque<int> hits;      ///< What was drawn and passed over, because it had been drawn before: the last thousand.
    int hit_count = 0;         ///< How many there were.
};

/// The numbers that were drawn already, and draws that avoid them until there are as many as there are to draw from.
class DrawTable {
public:
    explicit DrawTable(Random& random)
        : random_{random} {}

    /// Bars a number, from 0 on. A table that would be as long as `count` begins anew with this number alone, so that
    /// the first of a new cycle isn't the last of the old one. True when it has.
    bool bar(int number, int count);

    /// Draws until a number isn't barred. After 100 hits for each number the table is begun anew with its last one, and
    /// after as many again there is nothing to draw.
    [[nodiscard]] Draw draw(NumberRange range);

    [[nodiscard]] bool holds(int number) const;
    /// In the order in which they were barred.
    [[nodiscard]] const std::vector<int>& entries() const { return entries_; }
    void clear();

private:
    void add(int number);
    void begin_anew();
    void try_to_draw(NumberRange range, Draw& draw);

    Random& random_;
    std::vector<int> entries_;
    std::vector<bool> barred_; // by number: a cycle of n draws would compare n * n * ln n times otherwise
};

/// The tables of the station, which live as long as it does.
struct DrawTables {
    explicit DrawTables(Random& random)
        : deja_lu{random},
          deja_lu1{random},
          deja_tires{random} {}

    DrawTable deja_lu;    ///< Rows that random order has played, and jingles that were inserted.
    DrawTable deja_lu1;   ///< List items that were inserted.
    DrawTable deja_tires; ///< Records of which random lists were made.
};

} // namespace sonarelle
