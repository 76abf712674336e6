#pragma once

#include "desktop/panel.h"
#include "desktop/sound_reading.h"

namespace sonarelle {

class Dresser;
class WindowView;
struct Antenne_FM;

/// The four panels below the decks, each under its heading. The effect's is hidden while the effect is off, and the
/// level takes its place.
[[nodiscard]] QWidget* lower_panels(WindowView& view, Antenne_FM& window, const SoundReading& sound);

} // namespace sonarelle
