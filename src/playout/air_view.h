#pragma once

#include <string>

#include "playout/desk.h"

namespace sonarelle {

/// What a deck is to the air, for the operator's eye.
enum class DeckRole {
    empty,  ///< Without a file that it could start.
    loaded, ///< Waits with a file.
    heard,  ///< Runs beside the main deck: fades out, or plays over it.
    main    ///< The one that the chain goes by.
};

[[nodiscard]] DeckRole role_of(const Desk& desk, const Deck& deck);

/// The name of the file that follows the main deck's, without its ending. Empty when nothing follows by itself, or a
/// draw has yet to choose.
[[nodiscard]] std::string name_to_come(Desk& desk);

} // namespace sonarelle
