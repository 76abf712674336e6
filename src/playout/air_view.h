#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "playout/desk.h"

namespace sonarelle {

/// What a deck is to the air, for the operator's eye.
enum class DeckRole {
    empty,  ///< Without a file that it could start.
    loaded, ///< Waits with a file.
    heard,  ///< Runs beside the main deck: fades out, or plays over it.
    on_air, ///< The main deck, the one that the chain goes by, while it plays.
    paused, ///< The main deck, paused.
    ended   ///< The main deck, silent: stopped, at its end, or without a file.
};

[[nodiscard]] DeckRole role_of(const Desk& desk, const Deck& deck);
/// That of the main deck; empty without one.
[[nodiscard]] DeckRole main_role(Desk& desk);

/// Whether the chain stands still until a special mix has ended.
[[nodiscard]] bool waits_for_special_mix(const Desk& desk);

/// The deck that the air is told by: the main one while it plays or is paused, else another that sounds, else none.
[[nodiscard]] const Deck* deck_on_air(Desk& desk);
/// Its role; that of the main deck in silence.
[[nodiscard]] DeckRole air_role(Desk& desk);

/// How a file is named to the operator.
[[nodiscard]] std::string name_without_ending(std::string_view path);

/// The name of the file on the air, without its ending; empty for none.
[[nodiscard]] std::string name_on_air(Desk& desk);
/// Whole seconds from now to the end of play of what is on the air; 0 for nothing.
[[nodiscard]] int seconds_left(Desk& desk);

/// Whole seconds to the mix point, at which the chain brings the next track; nothing where it brings none.
[[nodiscard]] std::optional<int> seconds_to_mix(Desk& desk);

/// Second of a deck's file at which the next track comes in while it is on the air; nothing where none does.
[[nodiscard]] std::optional<int> mix_point(const Desk& desk, const Deck& deck);

/// The name of what is heard on a deck, or paused on the main one, without its ending; empty for nothing.
[[nodiscard]] std::string name_heard(const Desk& desk, const Deck& deck);

/// Whole seconds that a silence that is told has lasted; nothing for none.
[[nodiscard]] std::optional<int> silent_seconds(const Desk& desk);
/// The same as mm:ss; empty for none.
[[nodiscard]] std::string silence_text(const Desk& desk);

/// A fault has stopped the chain, and nothing follows what is on the air.
[[nodiscard]] bool is_stopped_by_a_fault(const Desk& desk);

/// The deck on which the track waits that follows the main deck's by itself; null for none.
[[nodiscard]] const Deck* deck_to_come(Desk& desk);

using IsMissing = std::function<bool(const std::string& path)>;
/// The files that follow the main deck's, two at most. The chain goes over rows whose file is missing, as far as
/// `is_missing` knows; where it knows that of all that are near, the next one of them stands for them. None when
/// nothing follows by itself; a draw has yet to choose what comes behind.
[[nodiscard]] std::vector<std::string> paths_to_come(Desk& desk, const IsMissing& is_missing);
/// The row of the first of them in the list; 0 while none of the list's comes, or a draw has yet to choose it.
[[nodiscard]] int row_to_come(Desk& desk, const IsMissing& is_missing);

} // namespace sonarelle
