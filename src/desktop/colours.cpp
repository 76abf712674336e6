#include "desktop/colours.h"

#include <cmath>

namespace sonarelle {

namespace {

double linear(double share) {
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
    return 0.2126 * linear(static_cast<double>(colour.redF())) + 0.7152 * linear(static_cast<double>(colour.greenF())) +
           0.0722 * linear(static_cast<double>(colour.blueF()));
}

} // namespace

QPalette studio_palette() {
    QPalette palette{studio::control, studio::window};
    palette.setColor(QPalette::WindowText, studio::text);
    palette.setColor(QPalette::Base, studio::well);
    palette.setColor(QPalette::AlternateBase, studio::card);
    palette.setColor(QPalette::Text, studio::text);
    palette.setColor(QPalette::ButtonText, studio::text);
    palette.setColor(QPalette::BrightText, studio::trouble);
    palette.setColor(QPalette::PlaceholderText, studio::caption);
    palette.setColor(QPalette::ToolTipBase, studio::tip);
    palette.setColor(QPalette::ToolTipText, studio::on_primary);
    palette.setColor(QPalette::Highlight, studio::selection);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, studio::focus);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, studio::off);
    return palette;
}

QColor to_qt(Colour colour, const QColor& of_desktop) {
    if (is_desktop_colour(colour))
        return of_desktop;
    return QColor{colour & 0xff, colour >> 8 & 0xff, colour >> 16 & 0xff};
}

Colour from_qt(const QColor& colour) {
    return colour.red() + 256 * colour.green() + 65536 * colour.blue();
}

double contrast(const QColor& a, const QColor& b) {
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return first > second ? first / second : second / first;
}

QColor readable_on(const QColor& ground) {
    const QColor light = Qt::white;
    const QColor dark = Qt::black;
    return contrast(light, ground) >= contrast(dark, ground) ? light : dark;
}

QColor legible(const QColor& ink, const QColor& ground) {
    return contrast(ink, ground) >= readable ? ink : readable_on(ground);
}

QColor mixed(const QColor& a, const QColor& b, double share) {
    const auto part = [share](int x, int y) { return static_cast<int>(std::lround(x + (y - x) * share)); };
    return QColor{part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue())};
}

QColor ground_for(Colour ink, Colour ground, const QColor& of_studio) {
    if (is_desktop_colour(ground))
        return of_studio;
    const QColor told = to_qt(ground, of_studio);
    const bool carries = contrast(to_qt(ink, studio::text), told) >= readable;
    return carries ? told : mixed(of_studio, told, 0.12);
}

} // namespace sonarelle
