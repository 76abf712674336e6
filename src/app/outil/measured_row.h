#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "app/outil/measuring.h"
#include "playlist/enreg_liste.h"

namespace sonarelle {

/// A row as the file manager makes one for a file; without a genre, the one that the tag names.
/// @throws Failure, naming the file, when it can't be played, is shorter than the second that the chain needs, or has a
/// path that a row can't hold.
[[nodiscard]] enreg_liste measured_row(Measuring& measuring, const std::string& file,
                                       const std::optional<std::string>& genre, std::int16_t volume);

} // namespace sonarelle
