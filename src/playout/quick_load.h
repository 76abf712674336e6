#pragma once

#include <string>
#include <string_view>

#include "playlist/enreg_liste.h"
#include "playlist/working_records.h"
#include "playout/deck_loading.h"
#include "playout/desk.h"
#include "playout/run_control.h"

namespace sonarelle {

/// The two quick load boxes, favourites and jingles: a track of theirs goes on any deck without touching the list.
class QuickLoad {
public:
    QuickLoad(Desk& desk, DeckLoading& loading, RunControl& run)
        : desk_{desk},
          loading_{loading},
          run_{run} {}

    /// Fills a box: 1 and 2 choose a list for the box of favourites and the box of jingles, 3 and 4 refill them from
    /// the lists that they remember. A list that can't be read leaves its box as far as it was filled, and the
    /// remembered name.
    void Charge_combo(int mode_combo);
    /// Writes what the boxes are for into their texts.
    void active_text_combo();

    void choose_favourite() { choose(favourites()); }
    void choose_jingle() { choose(jingles()); }
    void press_favourites_key(char32_t key) { press_key(favourites(), key); }
    void press_jingles_key(char32_t key) { press_key(jingles(), key); }

    /// The chosen track goes on a deck; on one that sounds after a question, whose No changes nothing.
    void load_favourite(Deck& deck) { load(deck, favourites()); }
    void load_jingle(Deck& deck) { load(deck, jingles()); }

private:
    struct Box {
        ComboBox& box;
        std::string& list;
        std::string_view key;
        MenuItem& menu;
        bool shows_duration;
    };
    [[nodiscard]] Box favourites();
    [[nodiscard]] Box jingles();

    void fill(const Box& box, const std::string& file, bool replaces);
    [[nodiscard]] std::string item_text(const Box& box, const enreg_liste& record);
    void choose(const Box& box);
    void press_key(const Box& box, char32_t key);
    void load(Deck& deck, const Box& box);

    Desk& desk_;
    DeckLoading& loading_;
    RunControl& run_;
    DestinationRecord chosen_; ///< Of the item last chosen in either box.
};

} // namespace sonarelle
