#include "desktop/level_meter.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "desktop/colours.h"
#include "desktop/text_size.h"

namespace sonarelle {

namespace {

constexpr int interval = 50;   // ms
constexpr int hold_looks = 30; // a second and a half
constexpr double fall = 0.03;  // of the scale, a look
constexpr double scale = 60;   // dB
constexpr double overload_share = 0.06;
constexpr double full = 0.999;
constexpr int letter_width = 16;
constexpr int gap = 4;
constexpr int line_width = 2;
constexpr int least_wide = 160; // pixels in which all figures have room
constexpr int figure_looks = 8; // between two figures of the loudness, so that each can be read

struct Figure {
    int decibels;
    bool is_always_shown;
};
constexpr std::array figures{Figure{-60, true}, Figure{-40, false}, Figure{-20, true}, Figure{-10, false},
                             Figure{0, true}};

} // namespace

double share_of_scale(double peak) {
    return peak <= 0 ? 0 : std::clamp(1 + 20 * std::log10(peak) / scale, 0.0, 1.0);
}

QString loudness_text(std::optional<double> lufs) {
    if (!lufs)
        return QStringLiteral("— LUFS");
    const QString number = QString::number(std::abs(*lufs), 'f', 1).replace('.', ',');
    return (*lufs < 0 ? QStringLiteral("−") : QString{}) + number + " LUFS";
}

LevelMeter::LevelMeter(const SoundReading& reading, QWidget* parent)
    : QWidget{parent},
      reading_{reading} {
    timer_.setInterval(interval);
    connect(&timer_, &QTimer::timeout, this, [this] { look(); });
    setAccessibleName("Niveau");
    setFont(studio_font(Type::tiny));
    setAttribute(Qt::WA_OpaquePaintEvent); // the card and the window's picture below rest meanwhile
}

void LevelMeter::showEvent(QShowEvent*) {
    if (reading_.level)
        timer_.start();
}

void LevelMeter::hideEvent(QHideEvent*) {
    timer_.stop();
}

void LevelMeter::look() {
    if (window()->isMinimized() || visibleRegion().isEmpty())
        return;
    const LevelReading reading = reading_.level();
    std::array<Shown, 2> now{};
    for (std::size_t channel = 0; channel < 2; ++channel)
        now[channel] = next(shown_[channel], static_cast<double>(reading.peak[channel]));
    const std::array<Shown, 2> before = std::exchange(shown_, now);
    for (std::size_t channel = 0; channel < 2; ++channel)
        if (before[channel] != now[channel])
            update(difference(bar(channel), before[channel], now[channel]));
    tell(reading);
}

QRectF LevelMeter::bar(std::size_t channel) const {
    const int figures_height = QFontMetrics{font()}.height();
    const double high = (height() - figures_height - gap) / 2.0;
    return {letter_width, static_cast<double>(channel) * (high + gap), static_cast<double>(width() - letter_width),
            high};
}

// What moved, so that a look paints neither the letters nor the scale anew.
QRect LevelMeter::difference(const QRectF& bar, const Shown& before, const Shown& now) {
    const double least = std::min({before.level, now.level, before.held, now.held});
    const bool ends_alike = (before.overload_looks > 0) == (now.overload_looks > 0);
    const double greatest = ends_alike ? std::max({before.level, now.level, before.held, now.held}) : 1.0;
    const double left = bar.left() + bar.width() * least - line_width;
    return QRectF{left, bar.top(), bar.left() + bar.width() * greatest - left, bar.height()}.toAlignedRect();
}

LevelMeter::Shown LevelMeter::next(const Shown& shown, double peak) {
    Shown now = shown;
    now.level = std::max(share_of_scale(peak), shown.level - fall);
    now.held_looks = std::max(0, shown.held_looks - 1);
    now.overload_looks = peak >= full ? hold_looks : std::max(0, shown.overload_looks - 1);
    if (now.level >= shown.held)
        now.held_looks = now.level > 0 ? hold_looks : 0;
    if (now.level >= shown.held || now.held_looks == 0)
        now.held = std::max(now.level, shown.held - fall);
    return now;
}

void LevelMeter::tell(const LevelReading& reading) {
    const bool is_due = looks_to_figure_ <= 0 || reading.lufs.has_value() != has_loudness_;
    --looks_to_figure_;
    if (!is_due)
        return;
    looks_to_figure_ = figure_looks;
    has_loudness_ = reading.lufs.has_value();
    QString text = loudness_text(reading.lufs);
    if (text == loudness_)
        return;
    loudness_ = std::move(text);
    if (on_loudness)
        on_loudness(loudness_);
}

void LevelMeter::paintEvent(QPaintEvent* event) {
    QPainter painter{this};
    painter.fillRect(event->rect(), palette().color(QPalette::Window));
    for (std::size_t channel = 0; channel < 2; ++channel)
        paint_channel(painter, bar(channel), shown_[channel]);
    painter.setPen(legible(studio::caption, palette().color(QPalette::Window)));
    if (event->rect().left() < letter_width)
        paint_letters(painter);
    if (event->rect().bottom() >= bar(1).bottom())
        paint_scale(painter);
}

void LevelMeter::paint_letters(QPainter& painter) const {
    for (std::size_t channel = 0; channel < 2; ++channel) {
        const QRectF beside = bar(channel);
        painter.drawText(QRectF{0, beside.top(), letter_width, beside.height()}, Qt::AlignLeft | Qt::AlignVCenter,
                         channel == 0 ? "G" : "D");
    }
}

void LevelMeter::paint_channel(QPainter& painter, const QRectF& bar, const Shown& shown) const {
    painter.fillRect(bar, studio::well);
    const double end = bar.width() * overload_share;
    const QRectF overload{bar.right() - end, bar.top(), end, bar.height()};
    painter.fillRect(overload, studio::control);
    painter.fillRect(QRectF{bar.left(), bar.top(), bar.width() * shown.level, bar.height()}, studio::air);
    if (shown.overload_looks > 0)
        painter.fillRect(overload, studio::trouble);
    if (shown.held > 0)
        painter.fillRect(
            QRectF{bar.left() + bar.width() * shown.held - line_width, bar.top(), line_width, bar.height()},
            studio::cursor);
}

void LevelMeter::paint_scale(QPainter& painter) const {
    const QFontMetrics metrics{font()};
    const QRect bars = bar(0).toAlignedRect();
    for (const Figure& figure : figures) {
        if (!figure.is_always_shown && bars.width() < least_wide)
            continue;
        const QString text = figure.decibels == 0 ? "0" : QStringLiteral("−") + QString::number(-figure.decibels);
        const int wide = metrics.horizontalAdvance(text);
        const int middle = bars.left() + static_cast<int>((1 + figure.decibels / scale) * bars.width());
        const int left = std::clamp(middle - wide / 2, bars.left(), bars.right() + 1 - wide);
        painter.drawText(QRect{left, height() - metrics.height(), wide, metrics.height()}, Qt::AlignCenter, text);
    }
}

} // namespace sonarelle
