#pragma once

#include <QFont>

namespace sonarelle {

/// The studio's type at a height that holds for a system text of 13 pixels; a greater one makes all greater.
[[nodiscard]] QFont studio_font(int pixels, bool bold = false);

} // namespace sonarelle
