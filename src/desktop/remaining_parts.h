#pragma once

#include "desktop/dresser.h"

namespace sonarelle {

/// A row of all parts that a window's view has not placed itself, so that none is ever missing; null when there are
/// none. They wrap into as many lines as they need.
[[nodiscard]] QWidget* remaining_parts(Dresser& dresser);

/// The same as a form, for windows that have no arrangement of their own: one line a part on a card, the buttons below.
/// `main_button` may be null.
[[nodiscard]] QWidget* form_of_parts(Dresser& dresser, const Control* main_button);

} // namespace sonarelle
