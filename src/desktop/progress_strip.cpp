#include "desktop/progress_strip.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "desktop/colours.h"

namespace sonarelle {

namespace {

// Pixels: a bar of the shape and the gap behind it.
constexpr double bar_width = 3;
constexpr double bar_pitch = 4;
constexpr double least_bar_height = 2; // silence is a line
constexpr int unknown_height = 8;      // a shape that isn't there is no loud sound
constexpr double lift = 0.6;           // so that a quiet piece has a shape too

constexpr QSizeF flag{12, 8};

} // namespace

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
    tell_moved(*this, place());
}

void ProgressStrip::set_marks(std::optional<double> next, std::optional<double> end) {
    if (next == next_ && end == end_)
        return;
    next_ = next;
    end_ = end;
    update();
}

void ProgressStrip::set_start(std::optional<double> start) {
    if (start == start_)
        return;
    start_ = start;
    update();
}

void ProgressStrip::set_text(const QString& text) {
    if (text == text_)
        return;
    text_ = text;
    update();
}

void ProgressStrip::set_fill(const QColor& fill) {
    if (fill == fill_)
        return;
    fill_ = fill;
    update();
}

void ProgressStrip::set_output(bool has_output) {
    if (has_output == has_output_)
        return;
    has_output_ = has_output;
    update();
}

void ProgressStrip::set_sound(std::shared_ptr<const Waveform> sound, double seconds) {
    if (!std::exchange(has_sound_, true))
        updateGeometry();
    if (sound == sound_ && seconds == seconds_)
        return;
    sound_ = std::move(sound);
    seconds_ = seconds;
    update();
}

void ProgressStrip::set_key_steps(double step, double long_step) {
    key_step_ = step;
    long_key_step_ = long_step;
}

void ProgressStrip::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath outline;
    outline.addRoundedRect(rect(), studio::small_radius, studio::small_radius);
    painter.fillPath(outline, studio::well);
    painter.setClipPath(outline);
    if (sound_ && seconds_ > 0)
        paint_sound(painter);
    else
        paint_fill(painter);
    paint_marks(painter);
    painter.setClipping(false);
    paint_text(painter);
    if (!hasFocus())
        return;
    painter.setPen(QPen{studio::focus, 2});
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF{rect()}.adjusted(1, 1, -1, -1), studio::small_radius, studio::small_radius);
}

QColor ProgressStrip::colour_at(double share) const {
    if (share < shown_share())
        return has_output_ ? fill_ : studio::second;
    const bool is_heard = (!start_ || share >= *start_) && (!end_ || share <= *end_);
    return is_heard ? studio::wave : studio::wave_unheard;
}

void ProgressStrip::paint_fill(QPainter& painter) const {
    const double tall = has_sound_ ? std::min(unknown_height, height()) : height();
    painter.fillRect(QRectF{0, (height() - tall) / 2.0, width() * shown_share(), tall}, colour_at(-1));
}

void ProgressStrip::paint_sound(QPainter& painter) const {
    const double middle = height() / 2.0;
    const double seconds_per_pixel = seconds_ / width();
    for (double x = 0; x < width(); x += bar_pitch) {
        const int peak = sound_->peak_between(x * seconds_per_pixel, (x + bar_pitch) * seconds_per_pixel);
        const double tall = std::max(least_bar_height, std::pow(peak / 255.0, lift) * (height() - 8));
        painter.fillRect(QRectF{x, middle - tall / 2, bar_width, tall}, colour_at(x / width()));
    }
}

void ProgressStrip::paint_marks(QPainter& painter) const {
    paint_line(painter, start_, 2, studio::text);
    paint_line(painter, next_, 2, studio::next);
    if (next_ && *next_ >= 0 && *next_ <= 1) {
        const double x = std::round(*next_ * width());
        QPainterPath triangle{QPointF{x - flag.width() / 2, 0}};
        triangle.lineTo(x + flag.width() / 2, 0);
        triangle.lineTo(x, flag.height());
        painter.fillPath(triangle, studio::next);
    }
    paint_line(painter, end_, 3, studio::trouble);
    if (has_sound_ && shown_share() > 0)
        paint_line(painter, shown_share(), 2, studio::cursor);
}

void ProgressStrip::paint_line(QPainter& painter, std::optional<double> place, int width, const QColor& colour) const {
    if (!place || *place < 0 || *place > 1)
        return;
    const double x = std::clamp(std::round(*place * this->width()) - 1, 0.0, this->width() - 1.0 * width);
    painter.fillRect(QRectF{x, 0, 1.0 * width, 1.0 * height()}, colour);
}

// On a plate of its own: white on the green of a played part doesn't read.
void ProgressStrip::paint_text(QPainter& painter) const {
    if (text_.isEmpty())
        return;
    const QRectF place = painter.boundingRect(QRectF{rect()}, Qt::AlignCenter, text_);
    QColor plate = studio::well;
    plate.setAlphaF(0.85F);
    painter.setPen(Qt::NoPen);
    painter.setBrush(plate);
    painter.drawRoundedRect(place.adjusted(-6, -1, 6, 1), studio::small_radius, studio::small_radius);
    painter.setPen(studio::text);
    painter.drawText(rect(), Qt::AlignCenter, text_);
}

double ProgressStrip::share_at(const QMouseEvent& event) const {
    return std::clamp(event.position().x() / std::max(1, width()), 0.0, 1.0);
}

bool ProgressStrip::is_refused(const QPoint& pointer) {
    const QString reason = refusal ? refusal() : QString{};
    if (!reason.isEmpty())
        QToolTip::showText(pointer, reason, this);
    return !reason.isEmpty();
}

void ProgressStrip::drag_to(double share, const QPoint& pointer) {
    dragged_ = share;
    if (seconds_ > 0)
        QToolTip::showText(pointer, place_text(place()), this);
    update();
}

void ProgressStrip::choose(double share, const QPoint& pointer) {
    if (!is_refused(pointer))
        on_seek(share);
}

void ProgressStrip::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(on_seek != nullptr && event->button() == Qt::LeftButton);
    const QPoint pointer = event->globalPosition().toPoint();
    if (event->isAccepted() && !is_refused(pointer))
        drag_to(share_at(*event), pointer);
}

void ProgressStrip::mouseMoveEvent(QMouseEvent* event) {
    if (dragged_ && event->buttons().testFlag(Qt::LeftButton))
        drag_to(share_at(*event), event->globalPosition().toPoint());
    if (on_move)
        on_move(share_at(*event));
}

// Only where the hand lets go is a seek: each one empties the buffers of what is read ahead, and is heard.
void ProgressStrip::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !dragged_)
        return;
    QToolTip::hideText();
    dragged_.reset();
    update();
    choose(share_at(*event), event->globalPosition().toPoint()); // the air may have come to it meanwhile
}

void ProgressStrip::move_to(double second) {
    if (on_seek && seconds_ > 0)
        choose(std::clamp(second / seconds_, 0.0, 1.0), mapToGlobal(rect().center()));
}

void ProgressStrip::keyPressEvent(QKeyEvent* event) {
    if (!on_seek || !move_by_key(*this, *event, key_step_, long_key_step_))
        QWidget::keyPressEvent(event);
}

} // namespace sonarelle
