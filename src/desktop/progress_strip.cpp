#include "desktop/progress_strip.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "desktop/colours.h"

namespace sonarelle {

ProgressStrip::ProgressStrip(QWidget* parent)
    : QWidget{parent},
      fill_{studio::air} {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setMouseTracking(true);
}

void ProgressStrip::set_share(double share) {
    const double bounded = std::clamp(share, 0.0, 1.0);
    if (bounded == share_)
        return;
    share_ = bounded;
    update();
}

void ProgressStrip::set_marks(std::optional<double> next, std::optional<double> end) {
    if (next == next_ && end == end_)
        return;
    next_ = next;
    end_ = end;
    update();
}

void ProgressStrip::set_text(const QString& text) {
    if (text == text_)
        return;
    text_ = text;
    update();
}

void ProgressStrip::set_fill(const QColor& fill) {
    fill_ = fill;
    update();
}

void ProgressStrip::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF bar = QRectF{rect()}.adjusted(0, 2, 0, -2);
    QPainterPath outline;
    outline.addRoundedRect(bar, 5, 5);
    painter.setPen(Qt::NoPen);
    painter.fillPath(outline, studio::groove);
    painter.setClipPath(outline);
    painter.fillRect(QRectF{bar.left(), bar.top(), bar.width() * share_, bar.height()}, fill_);
    painter.setClipping(false);
    paint_mark(painter, next_, studio::next);
    paint_mark(painter, end_, studio::trouble);
    if (!text_.isEmpty()) {
        painter.setPen(studio::text);
        painter.drawText(rect(), Qt::AlignCenter, text_);
    }
}

void ProgressStrip::paint_mark(QPainter& painter, std::optional<double> place, const QColor& colour) const {
    if (!place || *place < 0 || *place > 1)
        return;
    const double x = std::clamp(*place * width(), 1.0, width() - 2.0);
    painter.fillRect(QRectF{x - 1, 0, 3, static_cast<double>(height())}, colour);
}

void ProgressStrip::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(on_press != nullptr && event->button() == Qt::LeftButton);
    if (event->isAccepted())
        on_press(event->position().x() / std::max(1, width()));
}

void ProgressStrip::mouseMoveEvent(QMouseEvent* event) {
    if (on_move)
        on_move(event->position().x() / std::max(1, width()));
}

} // namespace sonarelle
