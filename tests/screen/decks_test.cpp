#include <gtest/gtest.h>

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "screen/desk_fixture.h"

namespace sonarelle::test {

/// A desk whose three decks are loaded by hand from the rows of a list.
class DecksOnScreen : public DeskFixture, public testing::WithParamInterface<int> {
protected:
    DecksOnScreen() { settings_of_a_second_start(); }

    [[nodiscard]] Deck& deck() { return station().deck_ring.deck(GetParam()); }
    [[nodiscard]] std::string named(std::string_view DeckNames::*part) const {
        return std::string{deck_names[static_cast<std::size_t>(GetParam() - 1)].*part};
    }

    [[nodiscard]] bool runs() { return deck().has_graph() && deck().graph().GetState() == MediaState::running; }
    /// As a file manager does with a file of this machine.
    void drop_on_panel(const std::string& file) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(QString::fromStdString(file))});
        const auto* open =
            widget_of(station().main_window)->findChild<QWidget*>(QString::fromStdString(named(&DeckNames::open)));
        QDragEnterEvent enter{{5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier};
        QCoreApplication::sendEvent(open->parentWidget(), &enter);
        QDropEvent drop{{5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier};
        QCoreApplication::sendEvent(open->parentWidget(), &drop);
    }
    void start() {
        press("Antenne_FM", named(&DeckNames::play));
        eventually("the deck running", [this] { return runs(); });
    }
};

TEST_P(DecksOnScreen, PlaysWhenPlayIsPressed) {
    operate("", [&] {
        load_decks();
        start();
        EXPECT_EQ(seen<int>([this] { return station().chain.lecteur_en_cours.value(); }), GetParam());
    });
}

TEST_P(DecksOnScreen, KeepsItsPartsWhereTheyAreWhenItPlays) {
    operate("", [&] {
        load_decks();
        const auto place = [this] {
            return widget_of(station().main_window)
                ->findChild<QWidget*>(QString::fromStdString(named(&DeckNames::title)))
                ->pos();
        };
        const auto before = seen<QPoint>(place);
        start();
        eventually("the mark of the main deck", [this] {
            const auto* mark = widget_of(station().main_window)
                                   ->findChild<QWidget*>(QString::fromStdString(named(&DeckNames::playing_mark)));
            return mark->isVisible();
        });
        EXPECT_EQ(seen<QPoint>(place), before);
    });
}

TEST_P(DecksOnScreen, PausesAndGoesOn) {
    operate("", [&] {
        load_decks();
        start();
        press("Antenne_FM", named(&DeckNames::pause));
        eventually("the pause", [this] { return !runs(); });
        press("Antenne_FM", named(&DeckNames::pause));
        eventually("the deck running again", [this] { return runs(); });
    });
}

TEST_P(DecksOnScreen, StopsWhenStopIsPressed) {
    operate("", [&] {
        load_decks();
        start();
        press("Antenne_FM", named(&DeckNames::stop));
        eventually("the stop", [this] { return !runs(); });
    });
}

TEST_P(DecksOnScreen, GoesForwardByTheButton) {
    operate("", [&] {
        load_decks();
        start();
        const auto position = [this] { return deck().graph().get_CurrentPosition(); };
        const double before = seen<double>(position);
        for (int times = 0; times < 5; ++times)
            press("Antenne_FM", named(&DeckNames::forward));
        eventually("a jump", [&] { return position() > before + 2; });
    });
}

TEST_P(DecksOnScreen, ZapsToTheNextDeck) {
    operate("", [&] {
        load_decks();
        start();
        press("Antenne_FM", named(&DeckNames::zap));
        eventually("the next deck as the main one",
                   [this] { return station().chain.lecteur_en_cours == next_deck(GetParam()); });
    });
}

TEST_P(DecksOnScreen, OpensAFileThatIsDroppedOnItsPanel) {
    const std::string file = tone("Dépôt.wav", 5);
    operate("", [&] {
        wait_for_the_keyboard();
        operators_event([&] { drop_on_panel(file); });
        eventually("the file", [this] { return deck().controls.title.caption.get() == "00:00:05 ( Dépôt )"; });
        EXPECT_EQ(seen<std::string>([this] { return deck().path; }), station_form(file));
    });
}

INSTANTIATE_TEST_SUITE_P(Decks, DecksOnScreen, testing::Values(1, 2, 3));

} // namespace sonarelle::test
