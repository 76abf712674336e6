#pragma once

#include <QTimer>
#include <QWidget>

#include "desktop/sound_reading.h"

namespace sonarelle {

/// Two bars for the peaks and a figure for the loudness, twenty times a second while it can be seen.
class LevelMeter : public QWidget {
public:
    explicit LevelMeter(const SoundReading& reading, QWidget* parent = nullptr);

    /// Called with the loudness as text, when it is another.
    std::function<void(const QString&)> on_loudness;

    [[nodiscard]] QSize sizeHint() const override { return {150, 90}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {90, 40}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void look();
    void tell(const LevelReading& reading);

    SoundReading reading_;
    QTimer timer_;
    std::array<double, 2> shown_{}; // shares of the scale
    QString loudness_;
};

/// A level as a share of a scale from -48 dB to full.
[[nodiscard]] double share_of_scale(double peak);
/// "−16,2 LUFS", and a dash in silence.
[[nodiscard]] QString loudness_text(std::optional<double> lufs);

} // namespace sonarelle
