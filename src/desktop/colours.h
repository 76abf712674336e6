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
inline constexpr QColor faded{0x8b, 0x94, 0x9e};        ///< What can't be reached.
inline constexpr QColor wave{0x59, 0x62, 0x6c};         ///< The shape of a sound that is to come,
inline constexpr QColor wave_unheard{0x3a, 0x41, 0x49}; ///< and behind its end of play.
inline constexpr QColor cursor{0xff, 0xff, 0xff};
inline constexpr QColor focus{0x7f, 0xb4, 0xff};
} // namespace studio

/// The palette of all that no setting colours.
[[nodiscard]] QPalette studio_palette();

/// `of_desktop` stands for a colour of the desktop.
[[nodiscard]] QColor to_qt(Colour colour, const QColor& of_desktop);
[[nodiscard]] Colour from_qt(const QColor& colour);

/// 1 to 21, as accessibility guidelines measure it.
[[nodiscard]] double contrast(const QColor& a, const QColor& b);
/// What text needs to be read at a glance.
inline constexpr double readable = 4.5;
/// Black or white, whichever reads better on a ground.
[[nodiscard]] QColor readable_on(const QColor& ground);
/// The ink where it reads on the ground, else black or white.
[[nodiscard]] QColor legible(const QColor& ink, const QColor& ground);
/// `share` of `b` in `a`.
[[nodiscard]] QColor mixed(const QColor& a, const QColor& b, double share);
/// What a told ink stands on: the told ground where the ink reads on it, else the studio's own with a breath of it. A
/// colour of the desktop leaves the studio's own.
[[nodiscard]] QColor ground_for(Colour ink, Colour ground, const QColor& of_studio);

} // namespace sonarelle
