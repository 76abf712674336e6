#pragma once

#include <QWidget>
#include <vector>

#include "desktop/stepped.h"

class QRadioButton;

namespace sonarelle {

class StudioButton;

/// One of several choices that exclude each other: lit, with a lamp before its words, while it is the chosen one. The
/// whole of it can be pressed.
class Segment : public QWidget, public Stepped {
public:
    /// Takes both; the lamp may be pressed by itself.
    Segment(StudioButton& lamp, QRadioButton& words);

    /// Takes the option's state.
    void show_choice();
    /// What it stands for has failed: red while it is lit.
    void set_alarm(bool alarm);
    [[nodiscard]] bool is_lit() const { return lit_; }
    void set_step(Step step) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] QColor ground() const;
    void tell_ground();

    StudioButton& lamp_;
    QRadioButton& words_;
    bool lit_ = false;
    bool alarm_ = false;
    int lamp_width_ = 18;
};

/// A row of segments in one frame.
class SegmentedChoice : public QWidget, public Stepped {
public:
    explicit SegmentedChoice(const std::vector<Segment*>& segments);

    void set_alarm(bool alarm);
    void set_step(Step step) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<Segment*> segments_;
};

} // namespace sonarelle
