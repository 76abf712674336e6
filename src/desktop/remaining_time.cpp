#include "desktop/remaining_time.h"

#include <QWidget>
#include <algorithm>

namespace sonarelle {

namespace {

QRect on_screen(const QWidget& part) {
    return {part.mapToGlobal(QPoint{}), part.size()};
}

} // namespace

QWidget* remaining_time_of(const QWidget& window) {
    const auto parts = window.findChildren<QWidget*>();
    const auto found = std::ranges::find(parts, "Temps restant", &QWidget::accessibleName);
    return found == parts.end() ? nullptr : *found;
}

QRect header_of(const QWidget& window) {
    const QWidget* time = remaining_time_of(window);
    return time == nullptr || time->parentWidget() == nullptr ? QRect{} : on_screen(*time->parentWidget());
}

} // namespace sonarelle
