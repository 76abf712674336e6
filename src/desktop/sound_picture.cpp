#include "desktop/sound_picture.h"

#include <QPainter>
#include <algorithm>

#include "desktop/colours.h"

namespace sonarelle {

namespace {

constexpr int interval = 40;              // ms
constexpr std::size_t wave_frames = 2048; // 43 ms
constexpr float lowest_decibel = -72;

} // namespace

SoundPictureView::SoundPictureView(const SoundReading& reading, QWidget* parent)
    : QWidget{parent},
      reading_{reading},
      frames_(2 * wave_frames) {
    setAttribute(Qt::WA_OpaquePaintEvent); // the card and the window's picture below rest meanwhile
    timer_.setInterval(interval);
    connect(&timer_, &QTimer::timeout, this, [this] { update(); });
}

void SoundPictureView::set_picture(SoundPicture picture) {
    picture_ = picture;
    update();
}

void SoundPictureView::set_running(bool running) {
    running_ = running;
    start_or_stop();
    update();
}

void SoundPictureView::showEvent(QShowEvent*) {
    start_or_stop();
}

void SoundPictureView::hideEvent(QHideEvent*) {
    start_or_stop();
}

void SoundPictureView::start_or_stop() {
    if (running_ && isVisible() && reading_.newest && reading_.bands)
        timer_.start();
    else
        timer_.stop();
}

void SoundPictureView::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    painter.fillRect(rect(), studio::well);
    if (!timer_.isActive())
        return;
    if (picture_ == SoundPicture::oscilloscope)
        paint_wave(painter);
    else
        paint_spectrum(painter);
}

// One column a point: the mean of both channels.
void SoundPictureView::paint_wave(QPainter& painter) {
    reading_.newest(frames_);
    const int columns = std::max(2, width() / 2);
    QPolygonF line;
    line.reserve(columns);
    for (int column = 0; column < columns; ++column) {
        const auto frame = static_cast<std::size_t>(column) * (wave_frames - 1) / static_cast<std::size_t>(columns - 1);
        const double sample = static_cast<double>(frames_[2 * frame] + frames_[2 * frame + 1]) / 2;
        line << QPointF{2.0 * column, (height() - 1) / 2.0 * (1 - std::clamp(sample * 1.2, -1.0, 1.0))};
    }
    painter.setPen(QPen{studio::air, 1});
    painter.drawPolyline(line);
}

void SoundPictureView::paint_spectrum(QPainter& painter) {
    const std::span<const float> bands = reading_.bands();
    const double wide = static_cast<double>(width()) / static_cast<double>(std::max<std::size_t>(1, bands.size()));
    for (std::size_t band = 0; band < bands.size(); ++band) {
        const double share = std::clamp(1 - static_cast<double>(bands[band] / lowest_decibel), 0.0, 1.0);
        const double high = share * height();
        painter.fillRect(QRectF{static_cast<double>(band) * wide, height() - high, wide - 1, high}, studio::air);
    }
}

} // namespace sonarelle
