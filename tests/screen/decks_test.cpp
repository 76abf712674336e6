#include <gtest/gtest.h>

#include "screen/desk_bench.h"

namespace sonarelle::test {

/// A desk whose three decks are loaded by hand from the rows of a list.
class DecksOnScreen : public DeskBench, public testing::WithParamInterface<int> {
protected:
    DecksOnScreen() { settings_of_a_second_start(); }

    [[nodiscard]] Deck& deck() { return station().desk.deck(GetParam()); }
    [[nodiscard]] std::string named(std::string_view DeckNames::*part) const {
        return std::string{deck_names[static_cast<std::size_t>(GetParam() - 1)].*part};
    }

    /// Chooses the chain over decks and loads the decks.
    void load_decks(const std::string& list) {
        eventually("the main window", [this] { return is_active(station().main_window); });
        operators_event([&] {
            station().list_document.open_list(station_form(list));
            station().main_window.coche2.click();
            for (int row = 1; row <= 3; ++row) {
                station().list_window.ListView1.select(row);
                station().list_window.deck_loads()[static_cast<std::size_t>(row - 1)]->click();
            }
        });
    }
    [[nodiscard]] bool runs() { return deck().has_graph() && deck().graph().GetState() == MediaState::running; }
    void start() {
        press("Antenne_FM", named(&DeckNames::play));
        eventually("the deck running", [this] { return runs(); });
    }
};

TEST_P(DecksOnScreen, PlaysWhenPlayIsPressed) {
    const std::string list = list_of(3, 60);
    operate("", [&] {
        load_decks(list);
        start();
        EXPECT_EQ(seen<int>([this] { return station().chain.lecteur_en_cours.value(); }), GetParam());
    });
}

TEST_P(DecksOnScreen, PausesAndGoesOn) {
    const std::string list = list_of(3, 60);
    operate("", [&] {
        load_decks(list);
        start();
        press("Antenne_FM", named(&DeckNames::pause));
        eventually("the pause", [this] { return !runs(); });
        press("Antenne_FM", named(&DeckNames::pause));
        eventually("the deck running again", [this] { return runs(); });
    });
}

TEST_P(DecksOnScreen, StopsWhenStopIsPressed) {
    const std::string list = list_of(3, 60);
    operate("", [&] {
        load_decks(list);
        start();
        press("Antenne_FM", named(&DeckNames::stop));
        eventually("the stop", [this] { return !runs(); });
    });
}

TEST_P(DecksOnScreen, GoesForwardByTheButton) {
    const std::string list = list_of(3, 60);
    operate("", [&] {
        load_decks(list);
        start();
        const auto position = [this] { return deck().graph().get_CurrentPosition(); };
        const double before = seen<double>(position);
        for (int times = 0; times < 5; ++times)
            press("Antenne_FM", named(&DeckNames::forward));
        eventually("a jump", [&] { return position() > before + 2; });
    });
}

TEST_P(DecksOnScreen, ZapsToTheNextDeck) {
    const std::string list = list_of(3, 60);
    operate("", [&] {
        load_decks(list);
        start();
        press("Antenne_FM", named(&DeckNames::zap));
        eventually("the next deck as the main one",
                   [this] { return station().chain.lecteur_en_cours == next_deck(GetParam()); });
    });
}

INSTANTIATE_TEST_SUITE_P(Decks, DecksOnScreen, testing::Values(1, 2, 3));

} // namespace sonarelle::test
