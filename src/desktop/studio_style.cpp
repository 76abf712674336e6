#include "desktop/studio_style.h"

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

#include "desktop/colours.h"
#include "desktop/control_painters.h"
#include "desktop/text_size.h"

namespace sonarelle {

namespace {

constexpr int scroll_bar_width = 12; // pixels
constexpr int tip_delay = 500;       // ms

bool has_lamp(const QWidget* widget) {
    return widget != nullptr && widget->property(lamp_stands_beside).toBool();
}

bool has_sign(const QWidget* widget) {
    return widget != nullptr && widget->property(sign_before_text).toInt() != 0;
}

} // namespace

int StudioStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
    case PM_RadioButtonLabelSpacing:
        return has_lamp(widget) ? 0 : QProxyStyle::pixelMetric(metric, option, widget);
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
        return scaled(check_size);
    case PM_SliderLength:
        return knob_length;
    case PM_SliderThickness:
    case PM_SliderControlThickness:
        return knob_width;
    case PM_ScrollBarExtent:
        return scroll_bar_width;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

void StudioStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    switch (element) {
    case PE_IndicatorRadioButton:
        if (!has_lamp(widget))
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    case PE_IndicatorCheckBox:
        return paint_check_box(*painter, *option);
    case PE_PanelLineEdit:
        return paint_field(*painter, *option);
    case PE_FrameFocusRect:
        return paint_focus_ring(*painter, option->rect);
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
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
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    const auto* chooser = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (control == CC_Slider && slider != nullptr)
        paint_fader(*painter, *slider);
    else if (control == CC_ScrollBar && slider != nullptr)
        paint_scroll_bar(*painter, *slider, subControlRect(control, option, SC_ScrollBarSlider, widget));
    else if (control == CC_ComboBox && chooser != nullptr && !chooser->editable)
        paint_chooser(*painter, *chooser, widget);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (option->state.testFlag(State_HasFocus) && (control == CC_Slider || control == CC_ComboBox))
        paint_focus_ring(*painter, option->rect);
}

QRect StudioStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                  const QWidget* widget) const {
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_Slider && part == SC_SliderHandle && slider != nullptr)
        return fader_knob(*slider);
    if (control == CC_Slider && part == SC_SliderGroove)
        return option->rect;
    QRect area = QProxyStyle::subControlRect(control, option, part, widget);
    if (control == CC_ComboBox && part == SC_ComboBoxEditField && has_sign(widget))
        area.setLeft(option->rect.left() + 2 * studio::grid + chooser_sign);
    return area;
}

// Alt alone, as on the way to another program, would give the letters to the menu bar.
int StudioStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* data) const {
    switch (hint) {
    case SH_MenuBar_AltKeyNavigation:
        return 0;
    case SH_ToolTip_WakeUpDelay:
        return tip_delay;
    default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

} // namespace sonarelle
