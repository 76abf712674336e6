#pragma once

#include <QColor>
#include <QSize>

namespace sonarelle {

/// The studio's values: what style, painters and scripts/pictures draw with. No colour, radius or size of type of the
/// look is written elsewhere. Green is the air, amber what comes next, red trouble; all else is quiet.
namespace studio {
// Grounds: window, card on it, what is pressed, what is sunken.
inline constexpr QColor window{0x14, 0x17, 0x1a};
inline constexpr QColor card{0x1d, 0x21, 0x25};
inline constexpr QColor control{0x2a, 0x2f, 0x35};
inline constexpr QColor control_over{0x36, 0x3c, 0x44};
inline constexpr QColor well{0x0f, 0x12, 0x14};
inline constexpr QColor bar{0x1a, 0x1d, 0x21}; ///< Menu and status line.
inline constexpr QColor line{0x36, 0x3c, 0x43};
inline constexpr QColor field_line{0x56, 0x5f, 0x69};
inline constexpr QColor tip{0xf2, 0xf4, 0xf6};

// Text, by its weight for the eye.
inline constexpr QColor text{0xf5, 0xf7, 0xf9};
inline constexpr QColor second{0xc3, 0xca, 0xd2};
inline constexpr QColor caption{0x9b, 0xa5, 0xaf};
inline constexpr QColor off{0x8b, 0x94, 0x9e}; ///< What can't be reached.

// Mark, fill of a control, card, text on that card.
inline constexpr QColor air{0x3d, 0xdc, 0x84};
inline constexpr QColor air_fill{0x17, 0x64, 0x3c};
inline constexpr QColor air_card{0x15, 0x27, 0x1d};
inline constexpr QColor air_text{0x7c, 0xeb, 0xae};
inline constexpr QColor next{0xf2, 0xae, 0x42};
inline constexpr QColor on_next{0x1a, 0x12, 0x04}; ///< Text on the full amber.
inline constexpr QColor next_card{0x27, 0x20, 0x14};
inline constexpr QColor next_text{0xf7, 0xc6, 0x72};
inline constexpr QColor trouble{0xf0, 0x56, 0x5b};
inline constexpr QColor trouble_fill{0xb0, 0x14, 0x1e};
inline constexpr QColor trouble_card{0x2b, 0x16, 0x19};
inline constexpr QColor trouble_text{0xff, 0x9e, 0xa1};

inline constexpr QColor primary{0xe3, 0xe8, 0xed}; ///< The main button of a box,
inline constexpr QColor on_primary{0x14, 0x17, 0x1a};
inline constexpr QColor focus{0xd9, 0xe6, 0xf5};
inline constexpr QColor selection{0x3c, 0x4a, 0x5c};
inline constexpr QColor wave{0x59, 0x62, 0x6c};         ///< The shape of a sound that is to come,
inline constexpr QColor wave_unheard{0x3a, 0x41, 0x49}; ///< and behind its end of play.
inline constexpr QColor cursor{0xff, 0xff, 0xff};
inline constexpr QColor knob{0xdf, 0xe4, 0xe9};

// Rows of a list on a light ground; on a dark one they take the grounds above.
inline constexpr QColor air_row{0x6f, 0xd3, 0x9c};
inline constexpr QColor next_row{0xf0, 0xbe, 0x69};
inline constexpr QColor next_row_dark{0x4a, 0x35, 0x11};
inline constexpr QColor missing_row{0xe5, 0xa9, 0xa6};
inline constexpr QColor missing_row_dark{0x33, 0x1a, 0x1d};
inline constexpr QColor on_missing_row{0x5e, 0x07, 0x10};
inline constexpr QColor selected_row{0x26, 0x30, 0x3c};

// Pixels at a text of 13.
inline constexpr int small_radius = 4; ///< Small button, row, waveform.
inline constexpr int radius = 6;       ///< Button, field.
inline constexpr int card_radius = 8;  ///< Card, menu, box.
inline constexpr int grid = 8;
inline constexpr int half_grid = 4;
} // namespace studio

/// How large a window's type is: by its size, since a large one is read from farther away.
enum class Step { narrow, compact, large };

/// What a text is, which gives its size in each step.
enum class Type {
    tiny,
    small,
    base,
    row,
    medium,
    following,
    list_title,
    deck_title,
    figure,
    list_remaining,
    clock,
    air_title,
    remaining,
    alarm
};

/// The step of the desk at a size of its window.
[[nodiscard]] constexpr Step step_of(QSize window) {
    if (window.height() >= 640 && window.width() >= 1600)
        return Step::large;
    return window.width() < 1200 ? Step::narrow : Step::compact;
}

/// Pixels of a text.
[[nodiscard]] int pixels_of(Type type, Step step);

/// Lengths of the desk that follow its step, in pixels.
struct StepLengths {
    int margin; ///< Around the window, and between cards.
    QSize card_margin;
    int menu, header, panels, status; ///< Heights of the desk's rows; the decks have the rest.
    int button, control, small_button, sign, gap;
    int volume; ///< Width of a deck's column of volume.
};
[[nodiscard]] const StepLengths& lengths_of(Step step);

/// Lengths of the list window, in pixels.
struct ListLengths {
    int header, modes, foot; ///< Heights of its strips; the rows have the rest.
    int head, row;
    int choice, button; ///< Heights of the reading modes and of the foot's buttons.
};
[[nodiscard]] const ListLengths& list_lengths_of(Step step);

} // namespace sonarelle
