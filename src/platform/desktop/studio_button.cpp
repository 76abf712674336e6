#include "platform/desktop/studio_button.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>

#include "platform/desktop/colours.h"

namespace sonarelle {

QColor colour_of(Accent accent) {
    switch (accent) {
    case Accent::air:
        return studio::air;
    case Accent::next:
        return studio::next;
    case Accent::trouble:
        return studio::trouble;
    case Accent::none:
        break;
    }
    return studio::edge;
}

StudioButton::StudioButton(QWidget* parent)
    : QAbstractButton{parent}, face_{studio::face, studio::text,   studio::edge,
                                     studio::text, studio::groove, studio::text} {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void StudioButton::set_face(const Face& face) {
    if (face == face_)
        return;
    face_ = face;
    update();
}

void StudioButton::set_picture(const QPixmap& picture) {
    picture_ = picture;
    update();
}

void StudioButton::set_symbol(const QString& symbol) {
    symbol_ = symbol;
    updateGeometry();
    update();
}

void StudioButton::set_accent(Accent accent) {
    if (accent == accent_)
        return;
    accent_ = accent;
    update();
}

void StudioButton::set_flat(bool flat) {
    flat_ = flat;
    update();
}

void StudioButton::set_least_width(int pixels) {
    least_width_ = pixels;
    updateGeometry();
}

QSize StudioButton::sizeHint() const {
    if (flat_ && !picture_.isNull())
        return picture_.size().boundedTo({200, 40});
    const QFontMetrics metrics{font()};
    return {std::max(least_width_, metrics.horizontalAdvance(shown_text()) + 20), metrics.height() + 14};
}

QSize StudioButton::minimumSizeHint() const {
    return {std::min(sizeHint().width(), std::max(least_width_, 34)), QFontMetrics{font()}.height() + 10};
}

void StudioButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
}

void StudioButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
}

void StudioButton::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const bool over = isEnabled() && underMouse();
    const QColor ground = isDown() ? face_.ground_down : over ? face_.ground_over : face_.ground;
    QColor ink = isDown() ? face_.ink_down : over ? face_.ink_over : face_.ink;
    if (!isEnabled())
        painter.setOpacity(0.38);
    else if (accent_ != Accent::none)
        ink = Qt::white;
    paint_face(painter, ground);
    paint_content(painter, ink);
}

void StudioButton::paint_face(QPainter& painter, QColor ground) const {
    const QRectF area = QRectF{rect()}.adjusted(1, 1, -1, -1);
    const bool lit = isEnabled() && accent_ != Accent::none;
    if (lit)
        ground = mixed(ground, colour_of(accent_), 0.32);
    painter.setBrush(flat_ ? QBrush{Qt::NoBrush} : QBrush{ground});
    painter.setPen(flat_ ? QPen{Qt::NoPen} : QPen{lit ? colour_of(accent_) : studio::edge, 1});
    painter.drawRoundedRect(area, 5, 5);
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen{studio::focus, 2});
        painter.drawRoundedRect(area, 5, 5);
    }
}

void StudioButton::paint_content(QPainter& painter, const QColor& ink) const {
    QRect area = rect().adjusted(5, 3, -5, -3);
    if (!picture_.isNull()) {
        const QSize size = picture_.size().scaled(area.size(), Qt::KeepAspectRatio).boundedTo(picture_.size());
        QRect place{QPoint{}, size};
        place.moveCenter(area.center());
        painter.drawPixmap(place, picture_);
        if (!flat_ || shown_text().isEmpty())
            return;
    }
    QFont shown = font();
    if (accent_ != Accent::none && isEnabled())
        shown.setBold(true);
    painter.setFont(shown);
    painter.setPen(ink);
    painter.drawText(area, Qt::AlignCenter, QFontMetrics{shown}.elidedText(shown_text(), Qt::ElideRight, area.width()));
}

} // namespace sonarelle
