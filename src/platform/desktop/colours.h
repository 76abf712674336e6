#pragma once

#include <QColor>
#include <QPalette>

#include "platform/control.h"

namespace sonarelle {

/// The studio's own colours: the air is green, what comes next amber, trouble red; all else is quiet.
namespace studio {
inline constexpr QColor air{0x3d, 0xdc, 0x84};
inline constexpr QColor next{0xd9, 0xa1, 0x36};
inline constexpr QColor trouble{0xe5, 0x5b, 0x5b};
inline constexpr QColor ground{0x15, 0x17, 0x1b};
inline constexpr QColor panel{0x1f, 0x22, 0x27};
inline constexpr QColor groove{0x10, 0x12, 0x15};
inline constexpr QColor face{0x2b, 0x2f, 0x36};
inline constexpr QColor edge{0x3a, 0x40, 0x49};
inline constexpr QColor text{0xe9, 0xec, 0xef};
inline constexpr QColor quiet{0xa4, 0xab, 0xb4};
inline constexpr QColor focus{0x7f, 0xb4, 0xff};
} // namespace studio

/// The palette of all that no setting colours.
[[nodiscard]] QPalette studio_palette();

/// Whether a colour is one of the desktop's, which the studio's palette stands for.
[[nodiscard]] constexpr bool is_desktop_colour(Colour colour) {
    return colour < 0;
}
[[nodiscard]] QColor to_qt(Colour colour, const QColor& of_desktop);
[[nodiscard]] Colour from_qt(const QColor& colour);

/// 1 to 21, as accessibility guidelines measure it.
[[nodiscard]] double contrast(const QColor& a, const QColor& b);
/// Black or white, whichever reads better on a ground.
[[nodiscard]] QColor readable_on(const QColor& ground);
/// `share` of `b` in `a`.
[[nodiscard]] QColor mixed(const QColor& a, const QColor& b, double share);
/// A button's face: dark, with a breath of the button's colour.
[[nodiscard]] QColor face_of(Colour colour);

} // namespace sonarelle
