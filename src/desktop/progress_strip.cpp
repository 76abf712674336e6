#include "desktop/progress_strip.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "desktop/colours.h"

namespace sonarelle {

namespace {

// Pixels: a bar of the shape and the gap behind it.
constexpr double bar_width = 3;
constexpr double bar_pitch = 4;
constexpr double least_bar_height = 2; // silence is a line
constexpr double lift = 0.6;           // so that a quiet piece has a shape too

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

void ProgressStrip::set_sound(std::shared_ptr<const Waveform> sound, double seconds) {
    if (sound == sound_ && seconds == seconds_)
        return;
    if ((sound == nullptr) != (sound_ == nullptr))
        updateGeometry();
    sound_ = std::move(sound);
    seconds_ = seconds;
    update();
}

void ProgressStrip::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF bar = QRectF{rect()}.adjusted(0, 2, 0, -2);
    QPainterPath outline;
    outline.addRoundedRect(bar, 5, 5);
    painter.setPen(Qt::NoPen);
    painter.fillPath(outline, studio::well);
    painter.setClipPath(outline);
    if (sound_ && seconds_ > 0)
        paint_sound(painter, bar);
    else
        paint_fill(painter, bar);
    painter.setClipping(false);
    paint_mark(painter, next_, studio::next);
    paint_mark(painter, end_, studio::trouble);
    if (!text_.isEmpty()) {
        painter.setPen(studio::text);
        painter.drawText(rect(), Qt::AlignCenter, text_);
    }
}

void ProgressStrip::paint_fill(QPainter& painter, const QRectF& bar) const {
    painter.fillRect(QRectF{bar.left(), bar.top(), bar.width() * share_, bar.height()}, fill_);
}

// What was played in the bar's colour, what is to come grey, and darker what will not be heard.
void ProgressStrip::paint_sound(QPainter& painter, const QRectF& bar) const {
    const double seconds_per_pixel = seconds_ / bar.width();
    for (double x = 0; x < bar.width(); x += bar_pitch) {
        const int peak = sound_->peak_between(x * seconds_per_pixel, (x + bar_pitch) * seconds_per_pixel);
        const double height = std::max(least_bar_height, std::pow(peak / 255.0, lift) * (bar.height() - 4));
        const double share = x / bar.width();
        const QColor& colour = share < share_                      ? fill_
                               : end_.has_value() && share > *end_ ? studio::wave_unheard
                                                                   : studio::wave;
        painter.fillRect(QRectF{bar.left() + x, bar.center().y() - height / 2, bar_width, height}, colour);
    }
    if (share_ > 0)
        painter.fillRect(QRectF{bar.left() + bar.width() * share_ - 1, bar.top(), 2, bar.height()}, studio::cursor);
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
