#include "platform/desktop/colours.h"

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
    QPalette palette{studio::face, studio::ground};
    palette.setColor(QPalette::WindowText, studio::text);
    palette.setColor(QPalette::Base, studio::groove);
    palette.setColor(QPalette::AlternateBase, studio::panel);
    palette.setColor(QPalette::Text, studio::text);
    palette.setColor(QPalette::Button, studio::face);
    palette.setColor(QPalette::ButtonText, studio::text);
    palette.setColor(QPalette::BrightText, studio::trouble);
    palette.setColor(QPalette::PlaceholderText, studio::quiet);
    palette.setColor(QPalette::ToolTipBase, studio::panel);
    palette.setColor(QPalette::ToolTipText, studio::text);
    palette.setColor(QPalette::Highlight, QColor{0x2f, 0x4d, 0x80});
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, studio::focus);
    const QColor faded{0x70, 0x76, 0x7f};
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faded);
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
    const QColor dark{0x0f, 0x0f, 0x0f};
    return contrast(light, ground) >= contrast(dark, ground) ? light : dark;
}

QColor mixed(const QColor& a, const QColor& b, double share) {
    const auto part = [share](int x, int y) { return static_cast<int>(std::lround(x + (y - x) * share)); };
    return QColor{part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue())};
}

QColor face_of(Colour told) {
    return is_desktop_colour(told) ? studio::face : mixed(studio::panel, to_qt(told, studio::face), 0.14);
}

} // namespace sonarelle
