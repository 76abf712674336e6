#pragma once

#include <QWidget>
#include <functional>
#include <optional>

namespace sonarelle {

/// A progress bar with two marks: amber where the next one begins, red where this one ends.
class ProgressStrip : public QWidget {
public:
    explicit ProgressStrip(QWidget* parent = nullptr);

    /// Shares of the whole, 0 to 1.
    void set_share(double share);
    void set_marks(std::optional<double> next, std::optional<double> end);
    void set_text(const QString& text);
    void set_fill(const QColor& fill);
    [[nodiscard]] double share() const { return share_; }

    /// The pointer's place as a share of the width. `on_press` null: presses go to what lies behind.
    std::function<void(double)> on_press;
    std::function<void(double)> on_move;

    [[nodiscard]] QSize sizeHint() const override { return {160, 16}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {60, 14}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void paint_mark(QPainter& painter, std::optional<double> place, const QColor& colour) const;

    double share_ = 0;
    std::optional<double> next_;
    std::optional<double> end_;
    QString text_;
    QColor fill_;
};

} // namespace sonarelle
