#pragma once

#include <optional>
#include <span>

#include "platform/controls.h"
#include "platform/window.h"
#include "state/station_settings.h"

namespace sonarelle {

/// Where the plain buttons of a window take their colour from.
enum class ButtonColour { of_windows, of_buttons };

/// Gives a window and its controls the colours of the settings, each kind its own.
void paint(Window& window, const StationSettings& settings, ButtonColour buttons = ButtonColour::of_windows);

/// The same for a window of the station, by its name. A window that keeps the desktop's colours is left alone.
void paint_station_window(Window& window, const StationSettings& settings);

/// What is added, byte by byte, to the colour of the labels while the pointer is over one that acts as a button.
inline constexpr Colour hover_step = 18000;

/// Labels that act as buttons change their colour under the pointer, and get it back when it moves over the window.
/// The settings outlive the window's events. Without a colour of its own the sum above is the one under the pointer.
void connect_hover(Window& window, std::span<Label* const> labels, const StationSettings& settings,
                   std::optional<Colour> under_pointer = std::nullopt);

} // namespace sonarelle
