#pragma once

#include <QStyleOption>

class QPainter;
class QWidget;

namespace sonarelle {

// How the toolkit's controls are drawn in the studio's tokens. Grounds and inks are those of the option's palette,
// which the station's colours reach. Lengths are pixels.

inline constexpr int check_size = 18;
inline constexpr int knob_length = 14; ///< Of a slider, along its way.
inline constexpr int knob_width = 32;
inline constexpr int chooser_sign = 18;

/// The ring of the keyboard round an area.
void paint_focus_ring(QPainter& painter, const QRect& area);
void paint_check_box(QPainter& painter, const QStyleOption& option);
void paint_field(QPainter& painter, const QStyleOption& option);
/// A slider as a fader: the way filled from its quiet end, marks beside it, a knob.
void paint_fader(QPainter& painter, const QStyleOptionSlider& option);
/// Where its knob stands.
[[nodiscard]] QRect fader_knob(const QStyleOptionSlider& option);
void paint_scroll_bar(QPainter& painter, const QStyleOptionSlider& option, const QRect& handle);
/// The plate and the arrow of a chooser; its text stands on it.
void paint_chooser(QPainter& painter, const QStyleOptionComboBox& option, const QWidget* widget);

/// A property of a chooser: the number of the sign before its text.
inline constexpr const char* sign_before_text = "sign_before_text";

} // namespace sonarelle
