#pragma once

#include <string>

#include "platform/platform.h"
#include "playlist/working_records.h"

namespace sonarelle {

/// Record `index_destinataire` of a list for a deck that is loaded by hand; that of 0 is the first. Its end point has
/// whole seconds, which the decks' counters show; the volume stays in percent. An end point that is no 16-bit number
/// leaves that of `before`, and a list that can't be read the whole of it, without a word.
[[nodiscard]] DestinationRecord lire(const Platform& platform, const std::string& fichier_courant,
                                     Integer index_destinataire, DestinationRecord before);

} // namespace sonarelle
