// The small monitor player, which commands the main deck.
#include <gmock/gmock.h>

#include "playout/desk_fixture.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MiniLecteurTest : public DeskFixture {
protected:
    MiniLecteurTest() {
        start();
        window.a_mini.click();
    }

    static std::string track(int number) { return "C:\\Musique\\titre " + std::to_string(number) + ".mp3"; }
    void load(int deck, double length = 100) {
        machine.add_track(track(deck), length);
        machine.dialogs.expect_open(track(deck));
        window.deck(deck).open.click();
    }
    void play_deck(int deck) {
        load(deck);
        window.deck(deck).play.click();
    }
    void expect_no_deck() { machine.dialogs.expect_box("Aucun lecteur en cours", Answer::ok); }
    /// Which parts of the player and of the desk can be reached.
    [[nodiscard]] std::vector<bool> reachable_parts() const {
        std::vector<bool> parts;
        for (const Window* shown : {static_cast<const Window*>(&player), static_cast<const Window*>(&window)})
            for (const Control* control : shown->controls())
                parts.push_back(control->is_reachable());
        return parts;
    }
    [[nodiscard]] double position_of(int deck) { return station.deck_ring.deck(deck).graph().get_CurrentPosition(); }

    mini_lecteur& player = station.small_player;
};

using WithoutADeck = MiniLecteurTest;
using SmallPlayerKeys = MiniLecteurTest;

struct Dispatch {
    std::string_view name;
    GraphicButton mini_lecteur::*button;
};

class EveryCommandButPlay : public MiniLecteurTest, public testing::WithParamInterface<Dispatch> {};

} // namespace

TEST_P(EveryCommandButPlay, SaysThatNoDeckPlaysAndChangesNothing) {
    load(1);
    expect_no_deck();
    const std::vector<bool> before = reachable_parts();
    (player.*GetParam().button).click();
    EXPECT_EQ(machine.dialogs.last().icon, Icon::information);
    EXPECT_EQ(reachable_parts(), before);
    EXPECT_THAT(machine.media.on_air(), IsEmpty());
    EXPECT_EQ(position_of(1), 0);
}

INSTANTIATE_TEST_SUITE_P(WithoutADeck, EveryCommandButPlay,
                         testing::Values(Dispatch{"next", &mini_lecteur::next}, Dispatch{"stop", &mini_lecteur::stop},
                                         Dispatch{"back", &mini_lecteur::back},
                                         Dispatch{"forward", &mini_lecteur::forward}),
                         [](const auto& the) { return std::string{the.param.name}; });

TEST_F(WithoutADeck, PauseSaysSo) {
    expect_no_deck();
    player.key_press(U'p');
}

TEST_F(WithoutADeck, PlayStartsTheFileOnDeckOne) {
    load(1);
    player.play.click();
    EXPECT_THAT(machine.media.on_air(), ElementsAre(track(1)));
}

TEST_F(WithoutADeck, PlayOpensAFileWhereDeckOneHasNone) {
    machine.add_track(track(7), 60);
    machine.dialogs.expect_open(track(7));
    player.play.click();
    EXPECT_EQ(machine.dialogs.last().title, "Ouvrir un fichier multimédia");
    EXPECT_THAT(machine.media.on_air(), ElementsAre(track(7)));
}

TEST_F(WithoutADeck, PlayWithoutAChosenFileStaysSilent) {
    machine.dialogs.expect_cancel();
    player.play.click();
    EXPECT_THAT(machine.media.on_air(), IsEmpty());
}

TEST_F(MiniLecteurTest, StopsTheMainDeck) {
    play_deck(2);
    player.stop.click();
    EXPECT_THAT(machine.media.on_air(), IsEmpty());
    EXPECT_EQ(window.deck(2).title.caption.get(), " - En attente");
}

TEST_F(MiniLecteurTest, StepsForwardAndBackOnTheMainDeck) {
    play_deck(3);
    player.forward.click();
    EXPECT_NEAR(position_of(3), 10.0, 1e-4);
    player.back.click();
    EXPECT_NEAR(position_of(3), 9.8, 1e-4);
}

TEST_F(MiniLecteurTest, ZapsToTheNextDeckAndIsReadyAgainWhenAFileComes) {
    load(2);
    play_deck(1);
    machine.run_for(seconds(20));
    player.next.click();
    EXPECT_THAT(machine.media.on_air(), testing::Contains(track(2)));
    load(3);
    EXPECT_TRUE(player.next.enabled);
}

TEST_F(MiniLecteurTest, ZapThatFindsNoFileOnTheNextDeckLeavesTheButtonReady) {
    play_deck(1);
    player.next.click();
    EXPECT_THAT(machine.media.on_air(), ElementsAre(track(1)));
    EXPECT_TRUE(player.next.enabled);
}

TEST_F(MiniLecteurTest, KeepsTheSpaceBarFromItsButtons) {
    EXPECT_TRUE(player.answers_space);
}

TEST_F(MiniLecteurTest, NamesTheFileInItsTitle) {
    load(1);
    window.deck(1).play.click();
    EXPECT_EQ(player.caption.get(), "titre 1");
}

TEST_F(MiniLecteurTest, ShowsWhatRemainsOfTheMainDeck) {
    play_deck(1);
    machine.run_for(seconds(30));
    EXPECT_EQ(player.remaining.caption.get(), "70");
}

TEST_F(MiniLecteurTest, GoesBackToTheMainWindowAndStoresItsPlace) {
    player.left = Twips{1200};
    player.top = Twips{300};
    player.show_main_window.click();
    EXPECT_FALSE(player.visible);
    EXPECT_FALSE(player.topmost);
    EXPECT_TRUE(window.visible);
    EXPECT_EQ(stored("Position_gauche_mini_lecteur", "Position"), "1200");
    EXPECT_EQ(stored("Position_haut_mini_lecteur", "Position"), "300");
}

TEST_F(MiniLecteurTest, GoesBackToAMainWindowThatWasReducedBefore) {
    window.state = WindowState::minimised;
    player.show_main_window.click();
    EXPECT_EQ(window.state, WindowState::normal);
}

TEST_F(MiniLecteurTest, NoToQuittingLeavesTheTopAndStoresItsPlace) {
    player.left = Twips{1200};
    machine.dialogs.expect_box("Confirmer la fermeture de Sonarelle ?", Answer::no);
    player.quit.click();
    EXPECT_TRUE(player.visible);
    EXPECT_FALSE(player.topmost);
    EXPECT_EQ(stored("Position_gauche_mini_lecteur", "Position"), "1200");
    EXPECT_FALSE(station.ended());
}

TEST_F(MiniLecteurTest, YesToQuittingEndsWithoutASecondQuestion) {
    player.left = Twips{1200};
    window.Active_journal.click();
    machine.dialogs.expect_box("Confirmer la fermeture de Sonarelle ?", Answer::yes);
    player.quit.click();
    EXPECT_TRUE(station.ended());
    EXPECT_EQ(stored("Position_gauche_mini_lecteur", "Position"), "1200");
    EXPECT_THAT(journal_text(), testing::EndsWith("Fermeture de Sonarelle\r\n"));
}

TEST_F(MiniLecteurTest, TellsWhatItsButtonsDo) {
    EXPECT_EQ(player.play.hint.get(), "Lecture");
    EXPECT_EQ(player.next.hint.get(), "Fichier suivant (Z ou S)");
    EXPECT_EQ(player.stop.hint.get(), "Stop (barre espace)");
    EXPECT_EQ(player.show_main_window.hint.get(), "Liste (L)");
    EXPECT_EQ(player.quit.hint.get(), "");
    EXPECT_EQ(player.back.hint.get(), "Arrière");
    EXPECT_EQ(player.forward.hint.get(), "Avant");
}

TEST_F(SmallPlayerKeys, OfNextActInBothCases) {
    for (const char32_t key : {U's', U'S', U'z', U'Z'}) {
        expect_no_deck();
        player.key_press(key);
    }
    EXPECT_EQ(machine.dialogs.asked().size(), 4U);
}

TEST_F(SmallPlayerKeys, SpaceStops) {
    play_deck(1);
    player.key_press(U' ');
    EXPECT_THAT(machine.media.on_air(), IsEmpty());
}

TEST_F(SmallPlayerKeys, OfThePauseActInBothCases) {
    play_deck(1);
    player.key_press(U'P');
    EXPECT_THAT(machine.media.on_air(), IsEmpty());
    player.key_press(U'p');
    EXPECT_THAT(machine.media.on_air(), ElementsAre(track(1)));
}

TEST_F(SmallPlayerKeys, OfTheListGoBackToTheMainWindow) {
    for (const char32_t key : {U'l', U'L'}) {
        window.a_mini.click();
        player.key_press(key);
        EXPECT_TRUE(window.visible);
        EXPECT_FALSE(player.visible);
    }
}

TEST_F(SmallPlayerKeys, OfQuittingAskFirst) {
    for (const char32_t key : {U'q', U'Q', U'\x1b'}) {
        machine.dialogs.expect_box("Confirmer la fermeture", Answer::no);
        player.key_press(key);
    }
    EXPECT_EQ(machine.dialogs.asked().size(), 3U);
    EXPECT_FALSE(station.ended());
}

TEST_F(SmallPlayerKeys, OpenTheMenusOfTheMainWindow) {
    std::vector<std::string> opened;
    window.on_popup = [&](MenuItem& menu, const Control*) { opened.push_back(menu.name()); };
    for (const char32_t key : {U'a', U'A', U'o', U'O'})
        player.key_press(key);
    EXPECT_THAT(opened, ElementsAre("affiche", "affiche", "Option_", "Option_"));
}

TEST_F(SmallPlayerKeys, OfTheFilesPressTheMainWindowsEntry) {
    int presses = 0;
    window.A_gere.on_click = [&] { ++presses; };
    player.key_press(U'f');
    player.key_press(U'F');
    EXPECT_EQ(presses, 2);
}

} // namespace sonarelle
