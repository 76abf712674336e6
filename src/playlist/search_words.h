#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "playlist/liste_son.h"
#include "state/list_state.h"

namespace sonarelle {

inline constexpr std::string_view search_words_file = "recherche.dit";

/// What the box of the search offers from one run to the next: paths that the operator keeps, in a file of the
/// program's folder, one record of 200 bytes for each, without a header. Window thread.
class SearchWords {
public:
    SearchWords(const Platform& platform, const ListState& state, Liste_son& window)
        : platform_{platform},
          state_{state},
          window_{window} {}

    /// Fills the box's list, in the file's order.
    void charge_recherche();
    /// Asks, and keeps the path of the row that was last sent to a deck.
    void enregistre_recherche();
    /// The button beside the box: nothing while nobody looks for anything.
    void press_save();

private:
    void store(std::string_view entry);
    void under_trap(const std::string& trouble, const std::function<void()>& statements);

    const Platform& platform_;
    const ListState& state_;
    Liste_son& window_;
};

/// Whether this is what the box holds while nobody looks for anything.
[[nodiscard]] bool is_untouched_search(std::string_view text);

} // namespace sonarelle
