#pragma once

#include "desktop/dresser.h"

namespace sonarelle {

struct Chargement;

/// A window shown as a form of its parts.
[[nodiscard]] std::unique_ptr<WindowView> form_view(Window& window, const DesktopServices& services);

/// The splash: its picture alone.
[[nodiscard]] std::unique_ptr<WindowView> splash_view(Chargement& window, const DesktopServices& services);

} // namespace sonarelle
