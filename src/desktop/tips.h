#pragma once

#include <QString>

class QWidget;

namespace sonarelle {

/// What a tip shows: its words, then the key that does the same in a small frame, unless the words name it already.
[[nodiscard]] QString tip_of(const QString& words, const QString& key);

/// Moves a tip away from every remaining time that can be seen.
void keep_off_remaining_time(QWidget& tip);

} // namespace sonarelle
