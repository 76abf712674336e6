#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <optional>

#include "platform/waveform.h"

namespace sonarelle {

/// A progress bar with two marks: amber where the next one begins, red where this one ends. Where the shape of the
/// sound is known, the bar is that shape, of which the part that was played is coloured.
class ProgressStrip : public QWidget {
public:
    explicit ProgressStrip(QWidget* parent = nullptr);

    /// Shares of the whole, 0 to 1.
    void set_share(double share);
    void set_marks(std::optional<double> next, std::optional<double> end);
    void set_text(const QString& text);
    void set_fill(const QColor& fill);
    /// `seconds` is what the whole width stands for. Null for a sound that isn't known.
    void set_sound(std::shared_ptr<const Waveform> sound, double seconds);
    [[nodiscard]] double share() const { return share_; }

    /// The pointer's place as a share of the width. `on_press` null: presses go to what lies behind.
    std::function<void(double)> on_press;
    std::function<void(double)> on_move;

    [[nodiscard]] QSize sizeHint() const override { return {160, sound_ ? 40 : 16}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {60, 14}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void paint_fill(QPainter& painter, const QRectF& bar) const;
    void paint_sound(QPainter& painter, const QRectF& bar) const;
    void paint_mark(QPainter& painter, std::optional<double> place, const QColor& colour) const;

    double share_ = 0;
    std::optional<double> next_;
    std::optional<double> end_;
    QString text_;
    QColor fill_;
    std::shared_ptr<const Waveform> sound_;
    double seconds_ = 0;
};

} // namespace sonarelle
