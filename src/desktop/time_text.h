#pragma once

#include <QString>
#include <algorithm>

namespace sonarelle {

/// hh:mm:ss of whole seconds, "00:00:00" for less than none; hours may pass 99.
[[nodiscard]] inline QString clock_text(int seconds) {
    const int shown = std::max(0, seconds);
    return QStringLiteral("%1:%2:%3")
        .arg(shown / 3600, 2, 10, QChar{'0'})
        .arg(shown / 60 % 60, 2, 10, QChar{'0'})
        .arg(shown % 60, 2, 10, QChar{'0'});
}

} // namespace sonarelle
