#include "desktop/tips.h"

#include <QApplication>
#include <QScreen>
#include <QTextDocument>
#include <QWidget>

#include "desktop/remaining_time.h"
#include "desktop/tokens.h"

namespace sonarelle {

QString tip_of(const QString& words, const QString& key) {
    if (key.isEmpty() || words.contains("(" + key))
        return Qt::mightBeRichText(words) ? Qt::convertFromPlainText(words) : words;
    const QString frame = QStringLiteral("border: 1px solid %1; padding: 0px 4px;").arg(studio::on_primary.name());
    return QStringLiteral("<table><tr><td style=\"white-space: nowrap; padding-right: 6px;\">%1</td>"
                          "<td style=\"%2\"><b>%3</b></td></tr></table>")
        .arg(words.toHtmlEscaped(), frame, key.toHtmlEscaped());
}

void keep_off_remaining_time(QWidget& tip) {
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        const QWidget* time = window->isVisible() && window != &tip ? remaining_time_of(*window) : nullptr;
        if (time == nullptr || !time->isVisible())
            continue;
        const QRect kept{time->mapToGlobal(QPoint{}), time->size()};
        if (!kept.intersects(tip.geometry()))
            continue;
        const int below = kept.bottom() + 1 + studio::half_grid;
        const bool fits = below + tip.height() <= tip.screen()->availableGeometry().bottom();
        tip.move(tip.x(), fits ? below : kept.top() - tip.height() - studio::half_grid);
    }
}

} // namespace sonarelle
