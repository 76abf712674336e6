#include "desktop/toggle.h"

#include <QMouseEvent>
#include <QPainter>

#include "desktop/colours.h"
#include "desktop/text_size.h"

namespace sonarelle {

namespace {

constexpr QSize track{34, 18};
constexpr int ring_room = 4; // for the ring of the keyboard, which stands off the track
constexpr double knob = 5.5;

} // namespace

Toggle::Toggle(QWidget* parent)
    : QAbstractButton{parent} {
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize Toggle::sizeHint() const {
    return QSize{scaled(track.width()), scaled(track.height())} + QSize{2 * ring_room, 2 * ring_room};
}

void Toggle::take_presses_on(QWidget& words) {
    words.installEventFilter(this);
}

bool Toggle::eventFilter(QObject* object, QEvent* event) {
    const bool press = event->type() == QEvent::MouseButtonPress;
    const bool release = event->type() == QEvent::MouseButtonRelease;
    if ((!press && !release) || static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton)
        return QAbstractButton::eventFilter(object, event);
    if (release)
        click();
    return true;
}

void Toggle::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
}

void Toggle::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
}

QColor Toggle::ground() const {
    const QColor rest = isChecked() ? studio::air_fill : studio::well;
    if (!isEnabled() || (!isDown() && !underMouse()))
        return rest;
    return mixed(rest, isDown() ? Qt::black : Qt::white, 0.12);
}

void Toggle::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF area = QRectF{rect()}.adjusted(ring_room, ring_room, -ring_room, -ring_room);
    if (hasFocus()) {
        painter.setPen(QPen{studio::focus, 2});
        const QRectF ring = area.adjusted(-3, -3, 3, 3);
        painter.drawRoundedRect(ring, ring.height() / 2, ring.height() / 2);
    }
    area.adjust(0.5, 0.5, -0.5, -0.5);
    painter.setPen(QPen{isChecked() ? studio::air : studio::field_line, 1});
    painter.setBrush(ground());
    painter.drawRoundedRect(area, area.height() / 2, area.height() / 2);
    const double half = area.height() / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(!isEnabled() ? studio::off : isChecked() ? QColor{Qt::white} : studio::caption);
    const double radius = knob * area.height() / track.height();
    painter.drawEllipse(QPointF{isChecked() ? area.right() - half : area.left() + half, area.center().y()}, radius,
                        radius);
}

ToggleBinding::ToggleBinding(Image& image, Toggle& widget, const DesktopServices& services)
    : Binding{image, widget, services} {
    connect(&widget, &QAbstractButton::clicked, this, [this, &image] { run([&image] { image.click(); }); });
}

} // namespace sonarelle
