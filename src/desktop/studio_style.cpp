#include "desktop/studio_style.h"

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

#include "desktop/colours.h"

namespace sonarelle {

namespace {

void draw_focus(QPainter& painter, const QRect& area) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen{studio::focus, 2});
    painter.drawRoundedRect(QRectF{area}.adjusted(1, 1, -1, -1), 3, 3);
    painter.restore();
}

bool has_lamp(const QWidget* widget) {
    return widget != nullptr && widget->property(lamp_stands_beside).toBool();
}

} // namespace

int StudioStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const bool is_mark = metric == PM_ExclusiveIndicatorWidth || metric == PM_ExclusiveIndicatorHeight;
    return is_mark && has_lamp(widget) ? 0 : QProxyStyle::pixelMetric(metric, option, widget);
}

void StudioStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    if (element == PE_IndicatorRadioButton && has_lamp(widget))
        return;
    if (element == PE_FrameFocusRect)
        draw_focus(*painter, option->rect);
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void StudioStyle::drawItemText(QPainter* painter, const QRect& area, int flags, const QPalette& palette, bool enabled,
                               const QString& text, QPalette::ColorRole role) const {
    QPalette shown = palette;
    if (enabled && role == QPalette::WindowText)
        shown.setColor(role, legible(palette.color(role), palette.color(QPalette::Window)));
    QProxyStyle::drawItemText(painter, area, flags, shown, enabled, text, role);
}

void StudioStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                     const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (option->state.testFlag(State_HasFocus) && (control == CC_Slider || control == CC_ComboBox))
        draw_focus(*painter, option->rect);
}

// Alt alone, as on the way to another program, would give the letters to the menu bar.
int StudioStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* data) const {
    return hint == SH_MenuBar_AltKeyNavigation ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
}

} // namespace sonarelle
