#include "desktop/level_meter.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/colours.h"

namespace sonarelle {

namespace {

constexpr int interval = 50;  // ms
constexpr double fall = 0.03; // of the scale, a look
constexpr double scale = 48;  // dB
constexpr double amber_from = 1 - 9 / scale;
constexpr double red_from = 1 - 1.5 / scale;

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
    std::array<double, 2> next{};
    for (std::size_t channel = 0; channel < 2; ++channel)
        next[channel] = std::max(share_of_scale(static_cast<double>(reading.peak[channel])), shown_[channel] - fall);
    if (next != shown_) {
        shown_ = next;
        update();
    }
    tell(reading);
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
    const int bar = (width() - 6) / 2;
    for (int channel = 0; channel < 2; ++channel) {
        const int x = channel * (bar + 6);
        painter.fillRect(x, 0, bar, height(), studio::groove);
        const double share = shown_[static_cast<std::size_t>(channel)];
        const auto fill = [&](double from, double to, const QColor& colour) {
            if (share <= from)
                return;
            const int top = height() - static_cast<int>(std::min(share, to) * height());
            painter.fillRect(x, top, bar, height() - static_cast<int>(from * height()) - top, colour);
        };
        fill(0, amber_from, studio::air);
        fill(amber_from, red_from, studio::next);
        fill(red_from, 1, studio::trouble);
    }
}

} // namespace sonarelle
