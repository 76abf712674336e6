#include "app/outil/deck_watch.h"

#include <algorithm>
#include <span>

namespace sonarelle {

std::optional<Frames> DeckWatch::end_of(Deck& deck, Frames now) const {
    if (!deck.has_graph() || deck.graph().GetState() != MediaState::running)
        return std::nullopt;
    return now + nearest_frame(deck.graph().get_Duration() - deck.graph().get_CurrentPosition());
}

void DeckWatch::advance(Frames now, Frames next) {
    std::array<std::pair<Frames, int>, 3> ends;
    std::size_t count = 0;
    for (Deck& deck : ring_.decks) {
        auto& told = told_[static_cast<std::size_t>(deck.number() - 1)];
        const auto end = end_of(deck, now);
        if (!end || *end > now)
            told.reset();
        if (end && *end > now && *end <= next && told != end) {
            told = end;
            ends[count++] = {*end, deck.number()};
        }
    }
    std::ranges::sort(std::span{ends}.first(count));
    for (std::size_t i = 0; i < count; ++i)
        if (on_end_of_file)
            on_end_of_file(ends[i].first, ends[i].second);
}

std::optional<Frames> DeckWatch::runs_until(int deck, Frames now) {
    const auto end = end_of(ring_.deck(deck), now);
    return end && *end > now ? end : std::nullopt;
}

std::optional<Frames> DeckWatch::sounds_until(Frames now) {
    std::optional<Frames> latest;
    for (Deck& deck : ring_.decks)
        if (const auto end = end_of(deck, now); end && *end > now)
            latest = std::max(latest.value_or(now), *end);
    return latest;
}

} // namespace sonarelle
