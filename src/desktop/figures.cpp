#include "desktop/figures.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace sonarelle {

namespace {

double width_of_cell(const QFontMetricsF& metrics) {
    double widest = 0;
    for (char digit = '0'; digit <= '9'; ++digit)
        widest = std::max(widest, metrics.horizontalAdvance(QChar{digit}));
    return widest;
}

double width_of(QChar character, const QFontMetricsF& metrics, double cell) {
    return character.isDigit() ? cell : metrics.horizontalAdvance(character);
}

double exact_width(const QFontMetricsF& metrics, const QString& text) {
    const double cell = width_of_cell(metrics);
    double width = 0;
    for (const QChar character : text)
        width += width_of(character, metrics, cell);
    return width;
}

} // namespace

int width_of_figures(const QFont& font, const QString& text) {
    return static_cast<int>(std::ceil(exact_width(QFontMetricsF{font}, text)));
}

void draw_figures(QPainter& painter, const QRect& area, Qt::Alignment alignment, const QString& text) {
    const QFontMetricsF metrics{painter.font()};
    const double cell = width_of_cell(metrics);
    const double spare = area.width() - exact_width(metrics, text);
    double x = area.left();
    if (alignment & Qt::AlignRight)
        x += spare;
    else if (alignment & Qt::AlignHCenter)
        x += spare / 2;
    for (const QChar character : text) {
        const double width = width_of(character, metrics, cell);
        painter.drawText(QRectF(x, area.top(), width, area.height()), Qt::AlignHCenter | Qt::AlignVCenter,
                         QString{character});
        x += width;
    }
}

} // namespace sonarelle
