#include "desktop/level_meter.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

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
constexpr int least_wide = 160; // pixels in which all figures have room

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
    if (now != shown_) {
        shown_ = now;
        update();
    }
    tell(reading);
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
    QString text = loudness_text(reading.lufs);
    if (text == loudness_)
        return;
    loudness_ = std::move(text);
    if (on_loudness)
        on_loudness(loudness_);
}

void LevelMeter::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    const QFontMetrics metrics{font()};
    const QRect bars{letter_width, 0, width() - letter_width, height() - metrics.height()};
    const double height = (bars.height() - gap) / 2.0;
    for (int channel = 0; channel < 2; ++channel) {
        const QRectF bar{static_cast<double>(bars.left()), channel * (height + gap), static_cast<double>(bars.width()),
                         height};
        paint_channel(painter, bar, shown_[static_cast<std::size_t>(channel)]);
        painter.setPen(legible(studio::caption, palette().color(QPalette::Window)));
        painter.drawText(QRectF{0, bar.top(), letter_width, height}, Qt::AlignLeft | Qt::AlignVCenter,
                         channel == 0 ? "G" : "D");
    }
    paint_scale(painter, bars);
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
        painter.fillRect(QRectF{bar.left() + bar.width() * shown.held - 2, bar.top(), 2, bar.height()}, studio::cursor);
}

void LevelMeter::paint_scale(QPainter& painter, const QRect& bars) const {
    painter.setPen(legible(studio::caption, palette().color(QPalette::Window)));
    const QFontMetrics metrics{font()};
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
