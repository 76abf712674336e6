#pragma once

#include <QPoint>
#include <QSize>

class QWidget;

namespace sonarelle {

/// Where a box comes up: over the middle of a window (`over`; null for the screen), below the headers of all windows,
/// so that what is on the air is never covered, and wholly on the screen.
[[nodiscard]] QPoint place_of_box(QSize size, const QWidget* over);

} // namespace sonarelle
