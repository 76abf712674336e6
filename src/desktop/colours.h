#pragma once

#include <QColor>
#include <QPalette>

#include "desktop/tokens.h"
#include "platform/control.h"

namespace sonarelle {

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
