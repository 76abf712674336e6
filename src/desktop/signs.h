#pragma once

#include <QPixmap>

namespace sonarelle {

/// The studio's signs: one line drawing each, in the colour of the text beside it.
enum class Sign {
    none,
    open,
    play,
    stop,
    pause,
    back,
    forward,
    zap,
    down,
    right,
    warn,
    ask,
    inform,
    check,
    search,
    save,
    place,
    star,
    note,
    no_card,
    plus,
    minus,
    headphones,
    rows,
    quit
};

/// A sign in a square of `size` pixels, sharp at the device's `ratio`.
[[nodiscard]] QPixmap sign_picture(Sign sign, int size, const QColor& colour, double ratio);

/// Draws a sign in the middle of an area, at most `size` pixels high.
void paint_sign(QPainter& painter, Sign sign, const QRectF& area, int size, const QColor& colour);

} // namespace sonarelle
