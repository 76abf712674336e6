#include "playout/air_view.h"

#include <algorithm>
#include <cstdint>

#include "platform/clock.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "playout/mix_times.h"

namespace sonarelle {

namespace {

// A deck that was released keeps its path, and one that waits for its start may be without a graph.
bool has_file(const Deck& deck) {
    const std::string& title = deck.controls.title.caption;
    return !deck.path.empty() && title != empty_title && title != waiting_title;
}

bool is_paused(const Deck& deck) {
    return deck.has_graph() && deck.graph().GetState() == MediaState::paused;
}

bool is_on(DeckRole main) {
    return main == DeckRole::on_air || main == DeckRole::paused;
}

/// The next row comes by draw; insertions come as the next row of the list.
bool is_drawn(const Desk& desk) {
    return !desk.chain.ordre_aleatoire.is_false() && !desk.chain.jingles_aleatoires.is_true() &&
           !desk.settings.valide_fichier_aleatoire1.is_true();
}

/// The chain brings what follows the main deck's track.
bool goes_on(Desk& desk) {
    return is_on(main_role(desk)) && !desk.is_manual() && !is_stopped_by_a_fault(desk);
}

constexpr int rows_looked_at = 100; // each second

/// A row and its file; neither where there is none.
struct RowToCome {
    int row = 0;
    std::string path;
};

/// The chain goes over rows of the file that is on the air before.
RowToCome row_behind(const RowTable& rows, const RowToCome& before, const IsMissing& is_missing) {
    int row = before.row;
    RowToCome next;
    for (int looked_at = 0; looked_at < std::min(rows.count(), rows_looked_at); ++looked_at) {
        row = row < std::min<int>(rows.count(), INT16_MAX) ? row + 1 : 1;
        const std::string& path = rows.text(row);
        if (path == before.path)
            continue;
        if (!is_missing(path))
            return {row, path};
        if (next.row == 0)
            next = {row, path};
    }
    return next;
}

std::vector<std::string> paths_in_list_order(const Desk& desk, const IsMissing& is_missing) {
    const RowTable& rows = desk.list_window.rows;
    const RowToCome on_air{desk.list.index_en_cours.value(), desk.chain.chemin_precedent};
    const RowToCome next = row_behind(rows, on_air, is_missing);
    if (next.row == 0)
        return {};
    const RowToCome then = row_behind(rows, next, is_missing);
    return then.row == 0 ? std::vector{next.path} : std::vector{next.path, then.path};
}

/// Without a list the decks follow each other round the ring.
std::vector<std::string> paths_on_decks(const Desk& desk, const Deck& next) {
    const Deck& then = desk.ring.deck(next_deck(next.number()));
    return role_of(desk, then) == DeckRole::loaded ? std::vector{next.path, then.path} : std::vector{next.path};
}

/// A row that is loaded ahead has its place behind the one on the air, where no draw put it.
std::vector<std::string> paths_behind_loaded(const Desk& desk, const Deck& next, const IsMissing& is_missing) {
    if (is_drawn(desk))
        return {next.path};
    const RowToCome loaded{desk.list.index_en_cours.value() + 1, next.path};
    const RowToCome then = row_behind(desk.list_window.rows, loaded, is_missing);
    return then.row == 0 ? std::vector{next.path} : std::vector{next.path, then.path};
}

} // namespace

std::string name_without_ending(std::string_view path) {
    const std::string_view name = name_of_path(path);
    return std::string{name.substr(0, name.rfind('.'))};
}

DeckRole role_of(const Desk& desk, const Deck& deck) {
    const bool is_main = deck.number() == desk.chain.lecteur_en_cours.value();
    if (deck.sounds()) // what fades out says already that it waits
        return is_main ? DeckRole::on_air : DeckRole::heard;
    if (is_main)
        return is_paused(deck) ? DeckRole::paused : DeckRole::ended;
    return has_file(deck) ? DeckRole::loaded : DeckRole::empty;
}

DeckRole main_role(Desk& desk) {
    return desk.ring.has_main_deck() ? role_of(desk, desk.ring.main_deck()) : DeckRole::empty;
}

bool waits_for_special_mix(const Desk& desk) {
    const bool chained = desk.window.deck_chain_timer.enabled() || desk.window.list_chain_timer.enabled();
    return chained && !desk.is_manual() && desk.window.Active_audio_jingles.checked &&
           desk.chain.lecteur_mix_special != 0;
}

const Deck* deck_on_air(Desk& desk) {
    if (is_on(main_role(desk)))
        return &desk.ring.main_deck();
    const auto* heard = std::ranges::find_if(desk.ring.decks, [](const Deck& deck) { return deck.sounds(); });
    return heard == desk.ring.decks.end() ? nullptr : heard;
}

DeckRole air_role(Desk& desk) {
    const Deck* deck = deck_on_air(desk);
    return deck == nullptr ? main_role(desk) : role_of(desk, *deck);
}

std::string name_on_air(Desk& desk) {
    const Deck* deck = deck_on_air(desk);
    return deck == nullptr ? std::string{} : name_without_ending(deck->path);
}

// A deck that sounds beside the main one plays its file out, and so does one that goes on behind a stop.
int seconds_left(Desk& desk) {
    const Deck* deck = deck_on_air(desk);
    int left = 0;
    ErrorIndicator{}.skip([&] {
        if (deck == nullptr)
            return;
        const bool has_end = is_on(main_role(desk)) && deck->end_point().value() > 0;
        left = ((has_end ? deck->end_point() : deck->whole_duration()) - deck->whole_position()).value();
    });
    return std::max(0, left);
}

std::optional<int> seconds_to_mix(Desk& desk) {
    if (desk.is_manual() || waits_for_special_mix(desk) || main_role(desk) != DeckRole::on_air)
        return std::nullopt;
    const bool over_decks = desk.window.deck_chain_timer.enabled() && desk.window.mix_titles.value() &&
                            !desk.ring.after(desk.ring.main_deck()).path.empty();
    if (!over_decks && !desk.window.list_chain_timer.enabled())
        return std::nullopt;
    const int left = seconds_left(desk) - desk.settings.mix_courant.value();
    return left > 0 ? std::optional{left} : std::nullopt;
}

// Of the main deck by the overlap in force, which a hand may have changed; of another by what its start will choose.
std::optional<int> mix_point(const Desk& desk, const Deck& deck) {
    if (desk.is_manual() || deck.mix_en_cours != 0)
        return std::nullopt;
    std::optional<int> point;
    ErrorIndicator{}.skip([&] {
        const Integer end = deck.end_point();
        const bool is_main = deck.number() == desk.chain.lecteur_en_cours.value();
        point = (end - (is_main ? desk.settings.mix_courant : mix_times(desk.settings, end).overlap)).value();
    });
    return point > 0 ? point : std::nullopt;
}

std::string name_heard(const Desk& desk, const Deck& deck) {
    const DeckRole role = role_of(desk, deck);
    return is_on(role) || role == DeckRole::heard ? name_without_ending(deck.path) : std::string{};
}

std::optional<int> silent_seconds(const Desk& desk) {
    if (!desk.chain.silent_since)
        return {};
    return static_cast<int>((desk.platform.clock.now() - *desk.chain.silent_since).count() / frame_rate);
}

std::string silence_text(const Desk& desk) {
    const auto seconds = silent_seconds(desk);
    if (!seconds)
        return {};
    const auto two_digits = [](int number) { return (number < 10 ? "0" : "") + std::to_string(number); };
    return two_digits(*seconds / 60) + ":" + two_digits(*seconds % 60);
}

bool is_stopped_by_a_fault(const Desk& desk) {
    return desk.chain.air == AirState::failed && !desk.is_manual() && !desk.window.deck_chain_timer.enabled() &&
           !desk.window.list_chain_timer.enabled();
}

const Deck* deck_to_come(Desk& desk) {
    if (!goes_on(desk))
        return nullptr;
    const bool from_list = desk.chain.mode_enchainement.is_true();
    const bool prepared = from_list ? desk.chain.chargement_fait.is_true() : desk.window.mix_titles.value();
    const Deck& next = desk.ring.after(desk.ring.main_deck());
    return prepared && role_of(desk, next) == DeckRole::loaded ? &next : nullptr;
}

int row_to_come(Desk& desk, const IsMissing& is_missing) {
    if (!goes_on(desk) || !desk.chain.mode_enchainement.is_true())
        return 0;
    const int current = desk.list.index_en_cours.value();
    if (is_drawn(desk))
        return desk.chain.choix_prepare.is_true() ? current : 0;
    // In list order the chain adds 1 to its row when it starts it.
    if (deck_to_come(desk) != nullptr)
        return current + (desk.chain.ordre_aleatoire.is_true() ? 0 : 1);
    return row_behind(desk.list_window.rows, {current, desk.chain.chemin_precedent}, is_missing).row;
}

std::vector<std::string> paths_to_come(Desk& desk, const IsMissing& is_missing) {
    const bool from_list = desk.chain.mode_enchainement.is_true();
    if (const Deck* next = deck_to_come(desk))
        return from_list ? paths_behind_loaded(desk, *next, is_missing) : paths_on_decks(desk, *next);
    const bool in_order = goes_on(desk) && from_list && !is_drawn(desk);
    return in_order ? paths_in_list_order(desk, is_missing) : std::vector<std::string>{};
}

} // namespace sonarelle
