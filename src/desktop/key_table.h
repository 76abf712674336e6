#pragma once

#include <string>
#include <vector>

#include "windows/antenne_fm.h"

namespace sonarelle {

/// A part of a window, and the key that does what a press of it does.
struct NamedKey {
    const Control* control;
    std::string key;
};

/// Of the main window's parts, whatever is on the air.
[[nodiscard]] std::vector<NamedKey> keys_of(Antenne_FM& window);

/// Of one deck's parts: these keys are for the main deck alone, so the others have none.
[[nodiscard]] std::vector<NamedKey> keys_of_deck(const DeckControls& deck, bool is_main);

} // namespace sonarelle
