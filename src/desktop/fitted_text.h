#pragma once

#include <QFontMetrics>
#include <QString>

namespace sonarelle {

/// A text each of whose paths and words fits a line so wide: what doesn't is cut in its middle, where a path tells
/// least. A path that fits stays on one line.
[[nodiscard]] QString with_fitting_words(const QString& text, const QFontMetrics& metrics, int width);

/// The same text without what holds its paths together.
[[nodiscard]] QString without_joints(QString text);

/// One line, at most so wide: its path gives way, or its middle where it has none.
[[nodiscard]] QString fitting_line(const QString& line, const QFontMetrics& metrics, int width);

} // namespace sonarelle
