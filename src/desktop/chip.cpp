#include "desktop/chip.h"

#include <QPainter>

#include "desktop/colours.h"
#include "desktop/text_size.h"

namespace sonarelle {

Chip::Chip(const QString& word)
    : word_{word} {
    setAccessibleName(word);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    set_step(Step::compact);
}

void Chip::set_step(Step step) {
    QFont font = studio_font(Type::small, step);
    font.setWeight(QFont::DemiBold);
    setFont(font);
    updateGeometry();
}

QSize Chip::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    return {metrics.horizontalAdvance(word_) + 2 * studio::grid + 2, metrics.height() + studio::half_grid + 2};
}

void Chip::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen{studio::field_line, 1});
    painter.drawRoundedRect(QRectF{rect()}.adjusted(0.5, 0.5, -0.5, -0.5), studio::small_radius, studio::small_radius);
    painter.setPen(legible(studio::second, palette().color(QPalette::Window)));
    painter.drawText(rect(), Qt::AlignCenter, word_);
}

} // namespace sonarelle
