#include "platform/desktop/studio_style.h"

#include <QPainter>
#include <QStyleOption>

#include "platform/desktop/colours.h"

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

} // namespace

void StudioStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    if (element == PE_FrameFocusRect)
        draw_focus(*painter, option->rect);
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void StudioStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                     const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (option->state.testFlag(State_HasFocus) && (control == CC_Slider || control == CC_ComboBox))
        draw_focus(*painter, option->rect);
}

} // namespace sonarelle
