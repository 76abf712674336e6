#include "playout/deck_ring.h"

#include <algorithm>

#include "platform/failure.h"

namespace sonarelle {

DeckRing::DeckRing(Media& media, Antenne_FM& window, ChainState& chain)
    : decks{Deck{1, media, window.deck(1), chain.path_of_deck(1)},
            Deck{2, media, window.deck(2), chain.path_of_deck(2)},
            Deck{3, media, window.deck(3), chain.path_of_deck(3)}},
      chain_{chain} {}

bool DeckRing::has_main_deck() const {
    return chain_.lecteur_en_cours >= 1 && chain_.lecteur_en_cours <= 3;
}

bool DeckRing::is_main(const Deck& deck) const {
    return chain_.lecteur_en_cours == deck.number();
}

int DeckRing::main_number() const {
    if (!has_main_deck())
        throw Failure{FailureNumber::no_object, "lecteur en cours"};
    return chain_.lecteur_en_cours.value();
}

Deck& DeckRing::main_deck() {
    return deck(main_number());
}

const Deck& DeckRing::main_deck() const {
    return deck(main_number());
}

bool DeckRing::sounds() const {
    return std::ranges::any_of(decks, [](const Deck& deck) { return deck.sounds(); });
}

} // namespace sonarelle
