#pragma once

#include <QFont>

#include "desktop/tokens.h"

namespace sonarelle {

/// How much greater the system's text is than the studio's own, 1 at least: all lengths that hold text grow by it.
[[nodiscard]] double text_factor();

/// Pixels at the system's text size.
[[nodiscard]] int scaled(int pixels);

/// The studio's type.
[[nodiscard]] QFont studio_font(Type type, Step step = Step::compact, bool bold = false);

} // namespace sonarelle
