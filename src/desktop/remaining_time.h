#pragma once

class QRect;
class QWidget;

namespace sonarelle {

/// Where a window tells how long the air still lasts: the part that nothing may cover. Null for one that doesn't.
[[nodiscard]] QWidget* remaining_time_of(const QWidget& window);

/// The header in which it stands, on the screen; null for a window without one.
[[nodiscard]] QRect header_of(const QWidget& window);

} // namespace sonarelle
