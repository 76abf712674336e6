#include "desktop/mark_handle.h"

#include <QEnterEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "desktop/colours.h"
#include "desktop/progress_strip.h"

namespace sonarelle {

namespace {

constexpr double key_step = 0.1;
constexpr double long_key_step = 1;
constexpr double flag_height = 16;

} // namespace

MarkHandle::MarkHandle(Side side, ProgressStrip& strip)
    : QWidget{&strip},
      side_{side},
      strip_{strip} {
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::SizeHorCursor);
    strip.installEventFilter(this);
    hide();
}

double MarkHandle::whole() const {
    return strip_.whole();
}

void MarkHandle::set_place(std::optional<double> second) {
    second_ = second;
    stand();
    tell_moved(*this, place());
    if (held_by_)
        QToolTip::showText(QCursor::pos(), place_text(place()), this);
}

double MarkHandle::mark_x() const {
    return std::round(std::clamp(place() / whole(), 0.0, 1.0) * strip_.width());
}

// Of two grips over each other, the one that has room to move is on top.
void MarkHandle::stand() {
    const bool shown = second_.has_value() && whole() > 0;
    setVisible(shown);
    if (!shown)
        return;
    const int x = static_cast<int>(mark_x()) - (side_ == Side::start ? grip_width - 1 : 1);
    setGeometry(std::clamp(x, 0, std::max(0, strip_.width() - grip_width)), 0, grip_width, strip_.height());
    if (side_ == Side::start)
        place() > whole() / 2 ? raise() : lower();
    update();
}

bool MarkHandle::eventFilter(QObject* object, QEvent* event) {
    if (object == &strip_ && event->type() == QEvent::Resize)
        stand();
    return QWidget::eventFilter(object, event);
}

void MarkHandle::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor colour = side_ == Side::start ? studio::text : studio::trouble;
    const bool lit = underMouse() || held_by_.has_value();
    const double edge = mark_x() - x() < grip_width / 2.0 ? 0 : grip_width; // that at the mark
    QPainterPath flag;
    flag.addPolygon(
        QPolygonF{{{edge, 0.0}, {grip_width - edge, 0.0}, {grip_width - edge, flag_height - 6}, {edge, flag_height}}});
    painter.fillPath(flag, lit ? mixed(colour, Qt::white, 0.35) : colour);
    if (!hasFocus())
        return;
    painter.setPen(QPen{studio::focus, 2});
    painter.drawRoundedRect(QRectF{rect()}.adjusted(1, 1, -1, -1), 2, 2);
}

void MarkHandle::enterEvent(QEnterEvent* event) {
    QWidget::enterEvent(event);
    update();
}

void MarkHandle::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    update();
}

void MarkHandle::move_to(double second) {
    if (on_moved)
        on_moved(std::clamp(second, 0.0, whole()));
}

void MarkHandle::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        held_by_ = mapTo(&strip_, event->position()).x() - mark_x();
    update();
}

void MarkHandle::mouseMoveEvent(QMouseEvent* event) {
    if (!held_by_)
        return;
    const double x = mapTo(&strip_, event->position()).x() - *held_by_;
    move_to(x / strip_.width() * whole());
}

void MarkHandle::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        held_by_.reset();
    QToolTip::hideText();
    update();
}

void MarkHandle::keyPressEvent(QKeyEvent* event) {
    if (!move_by_key(*this, *event, key_step, long_key_step))
        QWidget::keyPressEvent(event);
}

} // namespace sonarelle
