#pragma once

#include <array>
#include <functional>
#include <optional>

#include "playout/deck_ring.h"

namespace sonarelle {

/// Watches the decks from one instant to the next: which of them sound, and when a file comes to its end.
class DeckWatch {
public:
    explicit DeckWatch(DeckRing& ring)
        : ring_{ring} {}

    std::function<void(Frames at, int deck)> on_end_of_file;

    /// No deck got a command since the last instant. Ends of files before `next`, or at it, are told in order.
    void advance(Frames now, Frames next);

    /// The frame up to which a deck runs, or nothing when none does now.
    [[nodiscard]] std::optional<Frames> sounds_until(Frames now);

    /// The same of one deck.
    [[nodiscard]] std::optional<Frames> runs_until(int deck, Frames now);

private:
    [[nodiscard]] std::optional<Frames> end_of(Deck& deck, Frames now) const;

    DeckRing& ring_;
    std::array<std::optional<Frames>, 3> told_{};
};

} // namespace sonarelle
