#include "desktop/text_size.h"

#include <QApplication>
#include <QFontMetrics>
#include <algorithm>
#include <cmath>

namespace sonarelle {

double text_factor() {
    return std::max(1.0, QFontMetrics{QApplication::font()}.height() / 17.0);
}

int scaled(int pixels) {
    return static_cast<int>(std::lround(pixels * text_factor()));
}

QFont studio_font(Type type, Step step, bool bold) {
    QFont font = QApplication::font();
    font.setPixelSize(scaled(pixels_of(type, step)));
    font.setWeight(bold ? QFont::Bold : QFont::Medium);
    return font;
}

} // namespace sonarelle
