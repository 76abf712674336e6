#pragma once

#include <QTimer>
#include <QWidget>
#include <vector>

#include "desktop/binding.h"
#include "desktop/sound_reading.h"
#include "platform/controls.h"

namespace sonarelle {

/// The visual effect: the wave or the spectrum of what is heard, twenty-five times a second while it is on and can be
/// seen, and nothing at all otherwise.
class SoundPictureView : public QWidget {
public:
    explicit SoundPictureView(const SoundReading& reading, QWidget* parent = nullptr);

    void set_picture(SoundPicture picture);
    void set_running(bool running);
    [[nodiscard]] bool is_drawing() const { return timer_.isActive(); }

    [[nodiscard]] QSize sizeHint() const override { return {220, 90}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {120, 40}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void start_or_stop();
    void paint_wave(QPainter& painter);
    void paint_spectrum(QPainter& painter);

    SoundReading reading_;
    QTimer timer_;
    SoundPicture picture_ = SoundPicture::oscilloscope;
    bool running_ = false;
    std::vector<float> frames_;
};

class SoundDisplayBinding : public Binding {
public:
    SoundDisplayBinding(SoundDisplay& display, SoundPictureView& widget, const DesktopServices& services)
        : Binding{display, widget, services},
          display_{display},
          view_{widget} {}

protected:
    void show_state() override {
        view_.set_picture(display_.Affichage);
        view_.set_running(display_.takes_sound);
    }

private:
    SoundDisplay& display_;
    SoundPictureView& view_;
};

} // namespace sonarelle
