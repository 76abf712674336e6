#include "desktop/signs.h"

#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <algorithm>
#include <array>
#include <cmath>

namespace sonarelle {

namespace {

// On a grid of 24: lines of 2 with round ends; class f is filled.
constexpr std::array drawings{
    "",
    R"(<path d="M3 6.5V18a1.5 1.5 0 0 0 1.5 1.5h15A1.5 1.5 0 0 0 21 18V9a1.5 1.5 0 0 0-1.5-1.5H12L10 5H4.5A1.5 1.5 0 0 0 3 6.5z"/>)",
    R"(<path class="f" d="M7 4.5v15l12.5-7.5z"/>)",
    R"(<rect class="f" x="5.5" y="5.5" width="13" height="13" rx="1.5"/>)",
    R"(<path class="f" d="M6 5h4.2v14H6zM13.8 5H18v14h-4.2z"/>)",
    R"(<path class="f" d="M12 5.5v13L3 12zM21 5.5v13L12 12z"/>)",
    R"(<path class="f" d="M12 5.5v13l9-6.5zM3 5.5v13l9-6.5z"/>)",
    R"(<path d="M3 12h13M11 6.5l5.5 5.5-5.5 5.5M20.5 5v14" stroke-width="2.6"/>)",
    R"(<path d="M6 9.5l6 6 6-6"/>)",
    R"(<path d="M9.5 6l6 6-6 6"/>)",
    R"(<path d="M12 4L2.8 20h18.4zM12 10v4.5M12 17.3v.2"/>)",
    R"(<path d="M8.5 9a3.5 3.5 0 1 1 5.2 3c-1.1.7-1.7 1.3-1.7 2.6M12 18v.2"/>)",
    R"(<circle cx="12" cy="12" r="9"/><path d="M12 11v5.5M12 7.5v.2"/>)",
    R"(<path d="M5 12.5l4.5 4.5L19 7.5"/>)",
    R"(<circle cx="10.5" cy="10.5" r="6"/><path d="M15 15l5.5 5.5"/>)",
    R"(<path d="M5 4h11l4 4v12H4V4zM8 4v5h7V4M8 20v-6h8v6"/>)",
    R"(<circle cx="12" cy="12" r="7"/><circle class="f" cx="12" cy="12" r="2.6"/><path d="M12 2v3M12 19v3M2 12h3M19 12h3"/>)",
    R"(<path d="M12 4l2.4 5.2 5.6.7-4.1 3.9 1 5.6-4.9-2.8-4.9 2.8 1-5.6L4 9.9l5.6-.7z"/>)",
    R"(<path d="M9 18V6l10-2v12"/><circle cx="6.5" cy="18" r="2.5"/><circle cx="16.5" cy="16" r="2.5"/>)",
    R"(<path d="M11 5L6.5 9H3v6h3.5L11 19zM16 9.5l5 5M21 9.5l-5 5"/>)",
    R"(<path d="M12 5v14M5 12h14"/>)",
    R"(<path d="M5 12h14"/>)",
    R"(<path d="M4 14v-2a8 8 0 0 1 16 0v2M4 14h3.5v6H5a1 1 0 0 1-1-1zM20 14h-3.5v6H19a1 1 0 0 0 1-1z"/>)",
    R"(<path d="M4 6h16M4 12h16M4 18h16"/>)",
    R"(<path d="M6 6l12 12M18 6L6 18"/>)",
};
static_assert(drawings.size() == static_cast<std::size_t>(Sign::quit) + 1);

QByteArray drawing_of(Sign sign, const QColor& colour) {
    const QByteArray ink = colour.name().toLatin1();
    return R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 24"><style>.f{fill:)" + ink +
           R"(;stroke:none}</style><g fill="none" stroke-width="2" stroke-linecap="round" stroke-linejoin="round" stroke=")" +
           ink + "\">" + drawings[static_cast<std::size_t>(sign)] + "</g></svg>";
}

} // namespace

QPixmap sign_picture(Sign sign, int size, const QColor& colour, double ratio) {
    const int dots = static_cast<int>(std::ceil(size * ratio));
    const QString key = QStringLiteral("sign %1 %2 %3").arg(static_cast<int>(sign)).arg(dots).arg(colour.name());
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = QPixmap{dots, dots};
        picture.fill(Qt::transparent);
        QPainter painter{&picture};
        QSvgRenderer{drawing_of(sign, colour)}.render(&painter);
        painter.end();
        QPixmapCache::insert(key, picture);
    }
    picture.setDevicePixelRatio(ratio);
    return picture;
}

void paint_sign(QPainter& painter, Sign sign, const QRectF& area, int size, const QColor& colour) {
    if (sign == Sign::none)
        return;
    const int fits = std::min(size, static_cast<int>(std::min(area.width(), area.height())));
    const QPointF corner{area.center().x() - fits / 2.0, area.center().y() - fits / 2.0};
    painter.drawPixmap(corner.toPoint(), sign_picture(sign, fits, colour, painter.device()->devicePixelRatioF()));
}

} // namespace sonarelle
