#include "desktop/volume_bar.h"

#include <QPainter>
#include <algorithm>

#include "desktop/colours.h"

namespace sonarelle {

namespace {

constexpr double groove_width = 6; // pixels

} // namespace

VolumeBar::VolumeBar(QWidget* parent)
    : QWidget{parent} {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setAttribute(Qt::WA_TransparentForMouseEvents); // a press is the window's
}

void VolumeBar::set_share(double share) {
    const double bounded = std::clamp(share, 0.0, 1.0);
    if (bounded == share_)
        return;
    share_ = bounded;
    update();
}

void VolumeBar::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF way{(width() - groove_width) / 2, 0.5, groove_width, height() - 1.0};
    painter.setPen(QPen{studio::field_line, 1});
    painter.setBrush(studio::well);
    painter.drawRoundedRect(way, groove_width / 2, groove_width / 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(studio::second);
    painter.drawRoundedRect(way.adjusted(0, way.height() * (1 - share_), 0, 0), groove_width / 2, groove_width / 2);
}

} // namespace sonarelle
