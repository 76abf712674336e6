#include "desktop/tokens.h"

#include <array>

namespace sonarelle {

namespace {

// The narrow step has the compact one's type: it saves words instead.
struct TypeRow {
    int compact;
    int large;
};

constexpr std::array types{
    TypeRow{11, 13},  // tiny
    TypeRow{12, 14},  // small
    TypeRow{13, 15},  // base
    TypeRow{14, 17},  // medium
    TypeRow{14, 22},  // following
    TypeRow{18, 26},  // deck_title
    TypeRow{22, 38},  // figure
    TypeRow{34, 56},  // clock
    TypeRow{24, 44},  // air_title
    TypeRow{62, 124}, // remaining
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

} // namespace

int pixels_of(Type type, Step step) {
    const TypeRow& row = types[static_cast<std::size_t>(type)];
    return step == Step::large ? row.large : row.compact;
}

const StepLengths& lengths_of(Step step) {
    return step == Step::large ? large : compact;
}

} // namespace sonarelle
