#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <optional>

#include "desktop/place_in_time.h"
#include "platform/waveform.h"

namespace sonarelle {

/// How far a sound is: its shape, of which the part that was played is coloured, with an amber flag where the next one
/// begins and a red line where this one ends. Without a shape it is a plain bar. A place is chosen by a press, by
/// dragging, and by the arrow keys.
class ProgressStrip : public QWidget, public PlaceInTime {
public:
    explicit ProgressStrip(QWidget* parent = nullptr);

    /// Shares of the whole, 0 to 1.
    void set_share(double share);
    void set_marks(std::optional<double> next, std::optional<double> end);
    /// What lies before it isn't heard.
    void set_start(std::optional<double> start);
    void set_text(const QString& text);
    void set_fill(const QColor& fill);
    /// What no output plays is grey.
    void set_output(bool has_output);
    /// `seconds` is what the whole width stands for. Null for a sound that isn't known yet, which has the same room.
    void set_sound(std::shared_ptr<const Waveform> sound, double seconds);
    [[nodiscard]] double share() const { return share_; }

    /// A place was chosen, as a share of the width. While it is null, presses go to what lies behind.
    std::function<void(double)> on_seek;
    /// The pointer's place as a share of the width.
    std::function<void(double)> on_move;
    /// Why no place can be chosen at this moment; empty where one can.
    std::function<QString()> refusal;
    /// Seconds that an arrow key goes, without and with Shift. Places that lie nearer to each other may be one.
    void set_key_steps(double step, double long_step);

    [[nodiscard]] QSize sizeHint() const override { return {160, has_sound_ ? 40 : 16}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {60, 14}; }

    [[nodiscard]] double place() const override { return shown_share() * seconds_; }
    [[nodiscard]] double whole() const override { return seconds_; }
    [[nodiscard]] bool can_move() const override { return on_seek != nullptr; }
    void move_to(double second) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] double shown_share() const { return dragged_.value_or(share_); }
    [[nodiscard]] double share_at(const QMouseEvent& event) const;
    [[nodiscard]] QColor colour_at(double share) const;
    void drag_to(double share, const QPoint& pointer);
    void choose(double share, const QPoint& pointer);
    [[nodiscard]] bool is_refused(const QPoint& pointer);
    void paint_fill(QPainter& painter) const;
    void paint_sound(QPainter& painter) const;
    void paint_marks(QPainter& painter) const;
    void paint_line(QPainter& painter, std::optional<double> place, int width, const QColor& colour) const;
    void paint_text(QPainter& painter) const;

    double share_ = 0;
    std::optional<double> start_;
    std::optional<double> next_;
    std::optional<double> end_;
    std::optional<double> dragged_; ///< Where the pointer holds the cursor.
    QString text_;
    QColor fill_;
    bool has_output_ = true;
    bool has_sound_ = false; ///< Known or not.
    std::shared_ptr<const Waveform> sound_;
    double seconds_ = 0;
    double key_step_ = 1;
    double long_key_step_ = 10;
};

} // namespace sonarelle
