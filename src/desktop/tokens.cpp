#include "desktop/tokens.h"

#include <array>

namespace sonarelle {

namespace {

// The narrow step saves words before it saves type.
struct TypeRow {
    int narrow;
    int compact;
    int large;
};

constexpr std::array types{
    TypeRow{11, 11, 13},  // tiny
    TypeRow{12, 12, 14},  // small
    TypeRow{13, 13, 15},  // base
    TypeRow{13, 13, 16},  // row
    TypeRow{14, 14, 17},  // medium
    TypeRow{14, 14, 22},  // following
    TypeRow{16, 16, 20},  // list_title
    TypeRow{18, 18, 26},  // deck_title
    TypeRow{20, 22, 38},  // figure
    TypeRow{34, 34, 42},  // list_remaining
    TypeRow{34, 34, 56},  // clock
    TypeRow{24, 24, 44},  // air_title
    TypeRow{62, 62, 124}, // remaining
    TypeRow{38, 44, 88},  // alarm
};

constexpr StepLengths compact{.margin = 8,
                              .card_margin{12, 8},
                              .menu = 24,
                              .header = 83,
                              .panels = 104,
                              .status = 24,
                              .button = 36,
                              .control = 32,
                              .small_button = 24,
                              .sign = 18,
                              .gap = 4,
                              .volume = 60};
constexpr StepLengths large{.margin = 12,
                            .card_margin{16, 12},
                            .menu = 28,
                            .header = 156,
                            .panels = 120,
                            .status = 24,
                            .button = 48,
                            .control = 36,
                            .small_button = 28,
                            .sign = 24,
                            .gap = 8,
                            .volume = 88};

constexpr ListLengths compact_list{
    .header = 44, .modes = 40, .foot = 44, .head = 30, .row = 27, .choice = 30, .button = 32};
constexpr ListLengths large_list{
    .header = 48, .modes = 44, .foot = 48, .head = 34, .row = 31, .choice = 36, .button = 36};

} // namespace

int pixels_of(Type type, Step step) {
    const TypeRow& row = types[static_cast<std::size_t>(type)];
    return step == Step::large ? row.large : step == Step::narrow ? row.narrow : row.compact;
}

const StepLengths& lengths_of(Step step) {
    return step == Step::large ? large : compact;
}

const ListLengths& list_lengths_of(Step step) {
    return step == Step::large ? large_list : compact_list;
}

} // namespace sonarelle
