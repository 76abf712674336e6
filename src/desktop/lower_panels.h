#pragma once

#include "desktop/panel.h"
#include "desktop/sound_reading.h"

namespace sonarelle {

class Dresser;
class SegmentedChoice;
class WindowView;
struct Antenne_FM;

struct LowerPanels {
    QWidget* row;
    SegmentedChoice* chain; ///< Which chain is on.
};

/// The four panels below the decks, each under its heading. The effect's is hidden while the effect is off, and the
/// level takes its place.
[[nodiscard]] LowerPanels lower_panels(WindowView& view, Antenne_FM& window, const SoundReading& sound);

} // namespace sonarelle
