#pragma once

#include <QProxyStyle>

namespace sonarelle {

/// The toolkit's plain style, with the keyboard's focus drawn as on the studio's own buttons.
class StudioStyle : public QProxyStyle {
public:
    StudioStyle() : QProxyStyle{"Fusion"} {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
};

} // namespace sonarelle
