#pragma once

#include <array>

#include "playout/deck.h"
#include "state/chain_state.h"
#include "windows/antenne_fm.h"

namespace sonarelle {

/// The three decks, and which of them is the main one: the deck that the chain goes by.
/// Window thread.
class DeckRing {
public:
    DeckRing(Media& media, Antenne_FM& window, ChainState& chain);

    [[nodiscard]] Deck& deck(int number) { return decks.at(static_cast<std::size_t>(number - 1)); }
    [[nodiscard]] const Deck& deck(int number) const { return decks.at(static_cast<std::size_t>(number - 1)); }
    [[nodiscard]] Deck& before(const Deck& deck) { return this->deck(previous_deck(deck.number())); }
    [[nodiscard]] Deck& after(const Deck& deck) { return this->deck(next_deck(deck.number())); }

    [[nodiscard]] bool has_main_deck() const;
    [[nodiscard]] bool is_main(const Deck& deck) const;
    /// @throws Failure 91 without one.
    [[nodiscard]] Deck& main_deck();
    [[nodiscard]] const Deck& main_deck() const;

    /// Whether any deck is heard.
    [[nodiscard]] bool sounds() const;

    std::array<Deck, 3> decks;

private:
    [[nodiscard]] int main_number() const;

    const ChainState& chain_;
};

} // namespace sonarelle
