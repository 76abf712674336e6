#pragma once

#include <QRect>
#include <QString>

class QFont;
class QPainter;

namespace sonarelle {

/// The width of a text whose digits stand in cells of one width.
[[nodiscard]] int width_of_figures(const QFont& font, const QString& text);

/// Draws such a text, so that figures stand one below the other and nothing jumps when a second passes.
void draw_figures(QPainter& painter, const QRect& area, Qt::Alignment alignment, const QString& text);

} // namespace sonarelle
