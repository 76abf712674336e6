#pragma once

#include <QCoreApplication>
#include <QEnterEvent>
#include <QImage>
#include <QWidget>
#include <cstdlib>
#include <map>

#include "desktop/colours.h"

namespace sonarelle {

/// A widget as the operator sees it, one pixel a point.
inline QImage seen(QWidget& widget) {
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// The same with what lies behind it in its window.
inline QImage seen_in_window(QWidget& widget) {
    QWidget& window = *widget.window();
    return seen(window).copy(QRect{widget.mapTo(&window, QPoint{}), widget.size()});
}

/// The colour of most pixels of a picture: what its text stands on.
inline QColor ground_in(const QImage& picture) {
    std::map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    const auto most = std::ranges::max_element(counts, {}, [](const auto& entry) { return entry.second; });
    return most == counts.end() ? QColor{} : QColor{most->first};
}

/// The colour that stands out most from that ground: the core of its text's strokes.
inline QColor ink_in(const QImage& picture) {
    const QColor ground = ground_in(picture);
    QColor ink = ground;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (const QColor pixel = picture.pixelColor(x, y); contrast(pixel, ground) > contrast(ink, ground))
                ink = pixel;
    return ink;
}

inline double contrast_in(const QImage& picture) {
    return contrast(ink_in(picture), ground_in(picture));
}

inline bool is_near(const QColor& a, const QColor& b, int most = 12) {
    return std::abs(a.red() - b.red()) <= most && std::abs(a.green() - b.green()) <= most &&
           std::abs(a.blue() - b.blue()) <= most;
}

/// How many pixels are of a colour.
inline int count_of(const QImage& picture, const QColor& colour) {
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            count += is_near(picture.pixelColor(x, y), colour) ? 1 : 0;
    return count;
}

/// The pointer comes over a widget, and leaves it.
inline void point_at(QWidget& widget) {
    widget.setAttribute(Qt::WA_UnderMouse);
    const QPointF place = widget.rect().center();
    QEnterEvent enter{place, place, place};
    QCoreApplication::sendEvent(&widget, &enter);
}
inline void leave(QWidget& widget) {
    widget.setAttribute(Qt::WA_UnderMouse, false);
    QEvent leave{QEvent::Leave};
    QCoreApplication::sendEvent(&widget, &leave);
}

} // namespace sonarelle
