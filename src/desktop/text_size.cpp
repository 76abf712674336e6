#include "desktop/text_size.h"

#include <QApplication>
#include <QFontMetrics>
#include <algorithm>

namespace sonarelle {

QFont studio_font(int pixels, bool bold) {
    QFont font = QApplication::font();
    const double scale = std::max(1.0, QFontMetrics{font}.height() / 17.0);
    font.setPixelSize(static_cast<int>(pixels * scale));
    font.setBold(bold);
    return font;
}

} // namespace sonarelle
