#include "desktop/control_painters.h"

#include <QPainter>
#include <QStyle>
#include <QWidget>

#include "desktop/colours.h"
#include "desktop/signs.h"

namespace sonarelle {

namespace {

constexpr int groove_width = 6;
constexpr int mark_length = 8;
constexpr int mark_distance = 8; // from the groove
constexpr int marks = 5;

/// A painter's state, put back at the end.
class Brush {
public:
    explicit Brush(QPainter& painter)
        : painter_{painter} {
        painter_.save();
        painter_.setRenderHint(QPainter::Antialiasing);
    }
    ~Brush() { painter_.restore(); }
    Brush(const Brush&) = delete;
    Brush& operator=(const Brush&) = delete;

    void plate(const QRectF& area, const QColor& ground, const QColor& line, double radius) {
        painter_.setBrush(ground);
        painter_.setPen(line.isValid() ? QPen{line, 1} : QPen{Qt::NoPen});
        painter_.drawRoundedRect(area, radius, radius);
    }

private:
    QPainter& painter_;
};

QRectF inner(const QRect& area) {
    return QRectF{area}.adjusted(0.5, 0.5, -0.5, -0.5);
}

bool is_enabled(const QStyleOption& option) {
    return option.state.testFlag(QStyle::State_Enabled);
}

bool is_over(const QStyleOption& option) {
    return is_enabled(option) && option.state.testFlag(QStyle::State_MouseOver);
}

} // namespace

void paint_focus_ring(QPainter& painter, const QRect& area) {
    Brush brush{painter};
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen{studio::focus, 2});
    painter.drawRoundedRect(QRectF{area}.adjusted(1, 1, -1, -1), studio::small_radius, studio::small_radius);
}

void paint_check_box(QPainter& painter, const QStyleOption& option) {
    Brush brush{painter};
    const bool on = option.state.testFlag(QStyle::State_On);
    const QColor line = is_over(option) ? studio::second : studio::field_line;
    const QColor mark = is_enabled(option) ? studio::second : studio::off;
    brush.plate(inner(option.rect), on ? mark : studio::well, on ? mark : line, studio::small_radius);
    if (on)
        paint_sign(painter, Sign::check, option.rect, check_size - 2, studio::on_primary);
}

void paint_field(QPainter& painter, const QStyleOption& option) {
    Brush brush{painter};
    const bool focused = option.state.testFlag(QStyle::State_HasFocus);
    const QColor line = focused               ? studio::focus
                        : !is_enabled(option) ? studio::line
                        : is_over(option)     ? studio::second
                                              : studio::field_line;
    brush.plate(inner(option.rect), option.palette.color(QPalette::Base), line, studio::radius);
}

QRect fader_knob(const QStyleOptionSlider& option) {
    const bool upright = option.orientation == Qt::Vertical;
    const int way = (upright ? option.rect.height() : option.rect.width()) - knob_length;
    const int place =
        QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition, way, option.upsideDown);
    const QPoint middle = option.rect.center();
    return upright ? QRect{middle.x() - knob_width / 2 + 1, option.rect.top() + place, knob_width, knob_length}
                   : QRect{option.rect.left() + place, middle.y() - knob_width / 2 + 1, knob_length, knob_width};
}

void paint_fader(QPainter& painter, const QStyleOptionSlider& option) {
    Brush brush{painter};
    const QRectF whole = option.rect;
    const QRectF knob = fader_knob(option);
    const bool upright = option.orientation == Qt::Vertical;
    const QRectF groove =
        upright ? QRectF{knob.center().x() - groove_width / 2.0, whole.top(), groove_width, whole.height()}
                : QRectF{whole.left(), knob.center().y() - groove_width / 2.0, whole.width(), groove_width};
    brush.plate(groove.adjusted(0.5, 0.5, -0.5, -0.5), studio::well, studio::field_line, groove_width / 2.0);
    QRectF filled = groove;
    if (upright)
        filled.setTop(knob.center().y());
    else
        filled.setRight(knob.center().x());
    brush.plate(filled, is_enabled(option) ? studio::second : studio::field_line, {}, groove_width / 2.0);
    if (upright)
        for (int mark = 0; mark < marks; ++mark) {
            const double y = whole.top() + knob_length / 2.0 + mark * (whole.height() - knob_length) / (marks - 1.0);
            for (const double x : {groove.left() - mark_distance - mark_length, groove.right() + mark_distance})
                painter.fillRect(QRectF{x, y, mark_length, 1}, studio::field_line);
        }
    brush.plate(knob.adjusted(0.5, 0.5, -0.5, -0.5), is_enabled(option) ? studio::knob : studio::off, studio::well,
                studio::small_radius);
    const QRectF line = upright ? QRectF{knob.left() + 6, knob.center().y() - 1, knob.width() - 12, 2}
                                : QRectF{knob.center().x() - 1, knob.top() + 6, 2, knob.height() - 12};
    painter.fillRect(line, studio::wave);
}

void paint_scroll_bar(QPainter& painter, const QStyleOptionSlider& option, const QRect& handle) {
    Brush brush{painter};
    const QColor ground = option.palette.color(QPalette::Base);
    painter.fillRect(option.rect, ground);
    const QColor thumb = mixed(ground, readable_on(ground), is_over(option) ? 0.5 : 0.35);
    if (option.maximum > option.minimum)
        brush.plate(QRectF{handle}.adjusted(2, 2, -2, -2), thumb, {}, studio::small_radius);
}

void paint_chooser(QPainter& painter, const QStyleOptionComboBox& option, const QWidget* widget) {
    Brush brush{painter};
    const QColor ground = option.palette.color(QPalette::Button);
    const QColor ink = legible(option.palette.color(QPalette::ButtonText), ground);
    brush.plate(inner(option.rect), is_over(option) ? mixed(ground, readable_on(ground), 0.08) : ground,
                is_over(option) ? studio::field_line : studio::line, studio::radius);
    QRect arrow = option.rect;
    arrow.setLeft(arrow.right() - 2 * studio::grid - chooser_sign);
    paint_sign(painter, Sign::down, arrow, chooser_sign - 2, ink);
    const int sign = widget == nullptr ? 0 : widget->property(sign_before_text).toInt();
    QRect before = option.rect;
    before.setWidth(2 * studio::grid + chooser_sign);
    if (sign != 0)
        paint_sign(painter, static_cast<Sign>(sign), before, chooser_sign, ink);
}

} // namespace sonarelle
