#pragma once

#include <QTimer>
#include <QWidget>

#include "desktop/sound_reading.h"

namespace sonarelle {

/// A bar for the peaks of each channel over a scale in decibels, and a figure for the loudness, twenty times a second
/// while it can be seen. A line stays for a moment where the peak was greatest; the end of a bar turns red for as long
/// where the sound was beyond full scale, and at no other time.
class LevelMeter : public QWidget {
public:
    explicit LevelMeter(const SoundReading& reading, QWidget* parent = nullptr);

    /// Called with the loudness as text, when it is another: a few times a second at most.
    std::function<void(const QString&)> on_loudness;

    [[nodiscard]] QSize sizeHint() const override { return {150, 64}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {90, 44}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /// What a channel shows, in shares of the scale.
    struct Shown {
        double level = 0;
        double held = 0;
        int held_looks = 0;     ///< For how many looks more the line stays.
        int overload_looks = 0; ///< For how many looks more the end is red.
        friend bool operator==(const Shown&, const Shown&) = default;
    };

    void look();
    void tell(const LevelReading& reading);
    [[nodiscard]] static Shown next(const Shown& shown, double peak);
    void paint_channel(QPainter& painter, const QRectF& bar, const Shown& shown) const;
    void paint_letters(QPainter& painter) const;
    void paint_scale(QPainter& painter) const;
    [[nodiscard]] QRectF bar(std::size_t channel) const;
    /// What of a bar has to be painted anew.
    [[nodiscard]] static QRect difference(const QRectF& bar, const Shown& before, const Shown& now);

    SoundReading reading_;
    QTimer timer_;
    std::array<Shown, 2> shown_{};
    QString loudness_;
    bool has_loudness_ = false;
    int looks_to_figure_ = 0; ///< Until the next figure of the loudness.
};

/// A level as a share of a scale from -60 dB to full.
[[nodiscard]] double share_of_scale(double peak);
/// "−16,2 LUFS", and a dash in silence.
[[nodiscard]] QString loudness_text(std::optional<double> lufs);

} // namespace sonarelle
