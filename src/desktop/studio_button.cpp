#include "desktop/studio_button.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>

#include "desktop/colours.h"

namespace sonarelle {

namespace {

constexpr int least_text_width = 8;

// A picture without its edge.
QRect inside(const QPixmap& picture) {
    const int across = picture.width() / 8;
    const int down = picture.height() / 8;
    return picture.rect().adjusted(across, down, -across, -down);
}

} // namespace

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
    : QAbstractButton{parent},
      face_{studio::face, studio::text, studio::edge, studio::text, studio::groove, studio::text} {
    setFocusPolicy(Qt::TabFocus); // a space bar after a click would press it again
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void StudioButton::set_face(const Face& face) {
    if (face == face_)
        return;
    face_ = face;
    update();
}

void StudioButton::set_pictures(const PictureFaces& pictures) {
    if (pictures.rest.isNull() == has_picture())
        updateGeometry();
    pictures_ = pictures;
    update();
}

const QPixmap& StudioButton::shown_picture() const {
    return isDown() ? pictures_.down : is_under_pointer() ? pictures_.over : pictures_.rest;
}

// A word stays beside a picture; a sign was there in its stead.
bool StudioButton::has_text_beside() const {
    return has_face() && shown_text().size() > 2;
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

void StudioButton::set_look(ButtonLook look) {
    look_ = look;
    update();
}

void StudioButton::set_least_width(int pixels) {
    least_width_ = pixels;
    updateGeometry();
}

QSize StudioButton::sizeHint() const {
    const QFontMetrics metrics{font()};
    const int height = metrics.height() + 14;
    if (!has_face() && has_picture())
        return (pictures_.rest.size() / 2).boundedTo({480, height});
    if (!has_face() && shown_text().isEmpty())
        return {0, 0};
    int width = !has_picture() || has_text_beside() ? metrics.horizontalAdvance(shown_text()) + 20 : 0;
    if (has_picture())
        width += inside(pictures_.rest).width() / 2;
    return {std::max(least_width_, width), height};
}

QSize StudioButton::minimumSizeHint() const {
    if (!has_face())
        return sizeHint().boundedTo({24, 24});
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
    const bool over = is_under_pointer();
    QColor ground = isDown() ? face_.ground_down : over ? face_.ground_over : face_.ground;
    QColor ink = isDown() ? face_.ink_down : over ? face_.ink_over : face_.ink;
    if (has_picture()) { // whose signs are light
        ground = mixed(studio::face, isDown() ? Qt::black : Qt::white, isDown() ? 0.35 : over ? 0.10 : 0);
        ink = legible(ink, ground);
    }
    if (!isEnabled())
        painter.setOpacity(0.38);
    else if (accent_ != Accent::none)
        ink = readable_on(lit(ground));
    paint_face(painter, ground);
    if (look_ == ButtonLook::lamp && !has_picture())
        paint_lamp(painter);
    else
        paint_content(painter, ink);
}

QColor StudioButton::lit(const QColor& ground) const {
    return mixed(ground, colour_of(accent_), 0.32);
}

void StudioButton::paint_face(QPainter& painter, QColor ground) const {
    const QRectF area = QRectF{rect()}.adjusted(1, 1, -1, -1);
    const bool is_lit = isEnabled() && accent_ != Accent::none;
    if (is_lit)
        ground = lit(ground);
    painter.setBrush(has_face() ? QBrush{ground} : QBrush{Qt::NoBrush});
    painter.setPen(!has_face() ? QPen{Qt::NoPen} : QPen{is_lit ? colour_of(accent_) : studio::edge, 1});
    painter.drawRoundedRect(area, 5, 5);
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen{studio::focus, 2});
        painter.drawRoundedRect(area, 5, 5);
    }
}

// Dark it is a ring, so that its colour isn't all that tells it from a lit one.
void StudioButton::paint_lamp(QPainter& painter) const {
    const bool is_lit = accent_ != Accent::none;
    const QPointF centre = QRectF{rect()}.center();
    painter.setPen(Qt::NoPen);
    if (is_lit) {
        painter.setBrush(mixed(studio::groove, colour_of(accent_), 0.35));
        painter.drawEllipse(centre, 9, 9);
        painter.setBrush(colour_of(accent_));
    } else {
        const QColor ring = is_under_pointer() ? studio::text : studio::quiet;
        painter.setPen(QPen{legible(ring, palette().color(QPalette::Window)), 1.5});
        painter.setBrush(Qt::NoBrush);
    }
    painter.drawEllipse(centre, 6, 6);
}

void StudioButton::paint_content(QPainter& painter, const QColor& ink) const {
    QRect area = has_face() ? rect().adjusted(5, 3, -5, -3) : rect();
    if (has_picture())
        area = paint_picture(painter, area);
    if (area.width() < least_text_width)
        return;
    QFont shown = font();
    if (accent_ != Accent::none && isEnabled())
        shown.setBold(true);
    painter.setFont(shown);
    painter.setPen(ink);
    painter.drawText(area, Qt::AlignCenter, QFontMetrics{shown}.elidedText(shown_text(), Qt::ElideRight, area.width()));
}

// Pictures are drawn at twice their size and have a face of their own, whose edge is left out: the button draws its
// own. Returns the room that is left for text, which is none where there is no text for it.
QRect StudioButton::paint_picture(QPainter& painter, const QRect& area) const {
    const QPixmap& picture = shown_picture();
    const QRect source = !has_face() ? picture.rect() : inside(picture);
    const QSize size = !has_face()
                           ? picture.size().scaled(area.size(), Qt::KeepAspectRatio).boundedTo(picture.size())
                           : (source.size() / 2).scaled(area.size(), Qt::KeepAspectRatio).boundedTo(source.size() / 2);
    const int left = area.width() - size.width();
    const bool text = has_text_beside() && QFontMetrics{font()}.horizontalAdvance(shown_text()) < left - 4;
    QRect place{area.topLeft(), size};
    place.moveCenter({text ? area.left() + size.width() / 2 : area.center().x(), area.center().y()});
    // Of the picture's own face nothing shows where the button is lit.
    if (look_ != ButtonLook::picture)
        painter.setCompositionMode(QPainter::CompositionMode_Lighten);
    painter.drawPixmap(place, picture, source);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    return text ? QRect{place.right(), area.top(), area.right() - place.right(), area.height()} : QRect{};
}

} // namespace sonarelle
