#pragma once

#include "desktop/studio_style.h"

class QStyleOptionMenuItem;

namespace sonarelle {

/// A property of an entry: true for one that deletes what can't be had back, which is red under a warning sign.
inline constexpr const char* entry_destroys = "entry_destroys";

/// The studio's style with its menus and tips. Menus lie over panels of the windows' own colour, so each has an edge
/// and a column for its marks: a dot for one of many, a check for a switch. Tips come after half a second, and never
/// over a remaining time.
class MenuStyle : public StudioStyle {
public:
    void polish(QWidget* widget) override;
    using StudioStyle::polish;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* data) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                         const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
};

} // namespace sonarelle
