#include "desktop/card_strip.h"

#include <QPainter>

namespace sonarelle {

void CardStrip::paintEvent(QPaintEvent*) {
    const QColor card = palette().color(QPalette::Window);
    QPainter{this}.fillRect(rect(), deep_ && card == studio::card ? studio::bar : card);
}

} // namespace sonarelle
