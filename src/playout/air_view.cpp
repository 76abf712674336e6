#include "playout/air_view.h"

#include "platform/paths.h"

namespace sonarelle {

namespace {

// A deck that was released keeps its path, and one that waits for its start may be without a graph.
bool has_file(const Deck& deck) {
    const std::string& title = deck.controls.title.caption;
    return !deck.path.empty() && title != empty_title && title != waiting_title;
}

std::string name_without_ending(std::string_view path) {
    const std::string_view name = name_of_path(path);
    return std::string{name.substr(0, name.rfind('.'))};
}

bool is_drawn(const Desk& desk) {
    return !desk.chain.ordre_aleatoire.is_false() || desk.chain.jingles_aleatoires.is_true() ||
           desk.settings.valide_fichier_aleatoire1.is_true();
}

/// The chain goes over rows of the file that is on the air already.
std::string path_in_list_order(const Desk& desk) {
    const RowTable& rows = desk.list_window.ListView1;
    int row = desk.list.index_en_cours.value();
    for (int looked_at = 0; looked_at < rows.count(); ++looked_at) {
        row = row < rows.count() ? row + 1 : 1;
        if (rows.text(row) != desk.chain.chemin_precedent)
            return rows.text(row);
    }
    return {};
}

} // namespace

DeckRole role_of(const Desk& desk, const Deck& deck) {
    if (deck.number() == desk.chain.lecteur_en_cours.value())
        return DeckRole::main;
    // What fades out says already that it waits.
    if (deck.has_graph() && deck.graph().GetState() == MediaState::running)
        return DeckRole::heard;
    return has_file(deck) ? DeckRole::loaded : DeckRole::empty;
}

std::string name_to_come(Desk& desk) {
    if (!desk.has_main_deck() || desk.is_manual())
        return {};
    const Deck& next = desk.deck(next_deck(desk.chain.lecteur_en_cours.value()));
    const bool from_list = desk.chain.mode_enchainement.is_true();
    const bool prepared = !from_list || desk.chain.chargement_fait.is_true();
    if (prepared && role_of(desk, next) == DeckRole::loaded)
        return name_without_ending(next.path);
    return from_list && !is_drawn(desk) ? name_without_ending(path_in_list_order(desk)) : std::string{};
}

} // namespace sonarelle
