#include "desktop/box_place.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "desktop/remaining_time.h"

namespace sonarelle {

namespace {

constexpr int gap = 16; // below a window's header

QRect room_for(const QWidget* over) {
    return (over == nullptr ? QGuiApplication::primaryScreen() : over->screen())->availableGeometry();
}

// Below that of its window, and clear of all others.
int below_headers(QRect box, const QWidget& over) {
    const auto below = [](const QRect& header) { return header.bottom() + 1 + gap; };
    const QRect own = header_of(over);
    if (!own.isNull())
        box.moveTop(below(own));
    for (const QWidget* window : QApplication::topLevelWidgets())
        if (const QRect header = window->isVisible() ? header_of(*window) : QRect{}; header.intersects(box))
            box.moveTop(below(header));
    return box.top();
}

int within(int start, int length, int room_start, int room_length) {
    return std::max(room_start, std::min(start, room_start + room_length - length));
}

} // namespace

QPoint place_of_box(QSize size, const QWidget* over) {
    const QRect screen = room_for(over);
    const bool is_open = over != nullptr && over->isVisible() && !over->isMinimized();
    const QRect window = is_open ? QRect{over->mapToGlobal(QPoint{}), over->size()} : QRect{};
    const bool has_window = window.intersects(screen);
    const QRect below = has_window ? window : screen;
    const QPoint wished{below.center().x() - size.width() / 2, below.top() + below.height() / 3 - size.height() / 2};
    const int top = has_window ? below_headers({wished, size}, *over) : wished.y();
    return {within(wished.x(), size.width(), screen.left(), screen.width()),
            within(top, size.height(), screen.top(), screen.height())};
}

} // namespace sonarelle
