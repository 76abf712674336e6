#include "desktop/key_table.h"

namespace sonarelle {

std::vector<NamedKey> keys_of(Antenne_FM& window) {
    std::vector<NamedKey> keys{{&window.display_label, "A"}, {&window.option_label, "O"}, {&window.quit_label, "Q"}};
    for (std::size_t place = 0; place < window.decks.size(); ++place) {
        const DeckControls& deck = window.decks[place];
        keys.push_back({&deck.play, window.play_entries()[place]->shortcut});
        keys.push_back({&deck.special_mix, window.special_mix_entries()[place]->shortcut});
        keys.push_back({&deck.back, std::to_string(place + 1)});
    }
    return keys;
}

std::vector<NamedKey> keys_of_deck(const DeckControls& deck, bool is_main) {
    std::vector<NamedKey> keys{{&deck.zap, "Z"}, {&deck.pause, "P"}, {&deck.louder, "H"}, {&deck.quieter, "B"}};
    if (!is_main)
        for (NamedKey& named : keys)
            named.key.clear();
    return keys;
}

} // namespace sonarelle
