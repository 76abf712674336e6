#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "desktop/place_in_time.h"

namespace sonarelle {

class ProgressStrip;

/// The grip of a mark on a strip: dragged by the pointer, moved by the arrow keys. It stands beside the part that is
/// heard, so that both marks of one place can be grabbed.
class MarkHandle : public QWidget, public PlaceInTime {
public:
    enum class Side { start, end };
    static constexpr int grip_width = 10;

    /// A child of the strip, whose seconds it counts in.
    MarkHandle(Side side, ProgressStrip& strip);

    /// Second of the file; nothing hides it, and so does a strip of no length.
    void set_place(std::optional<double> second);

    /// Where the operator wants the mark; it goes there by `set_place`.
    std::function<void(double second)> on_moved;

    [[nodiscard]] double place() const override { return second_.value_or(0); }
    [[nodiscard]] double whole() const override;
    [[nodiscard]] bool can_move() const override { return true; }
    void move_to(double second) override;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void stand();
    [[nodiscard]] double mark_x() const;

    Side side_;
    ProgressStrip& strip_;
    std::optional<double> second_;
    std::optional<double> held_by_; ///< Pixels from the mark to the pointer that drags it.
};

} // namespace sonarelle
