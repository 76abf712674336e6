#pragma once

#include <QProxyStyle>

namespace sonarelle {

/// A property of an option: a lamp stands beside it and shows whether it is chosen, so it draws no mark of its own.
inline constexpr const char* lamp_stands_beside = "lamp_stands_beside";

/// The toolkit's plain style, with its controls drawn in the studio's tokens.
class StudioStyle : public QProxyStyle {
public:
    StudioStyle()
        : QProxyStyle{"Fusion"} {}

    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    /// Text on the window takes an ink that reads on what it stands on.
    void drawItemText(QPainter* painter, const QRect& area, int flags, const QPalette& palette, bool enabled,
                      const QString& text, QPalette::ColorRole role) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                       const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* data) const override;
};

} // namespace sonarelle
