#include "playout/auto_chain.h"

#include <gmock/gmock.h>

#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using testing::Contains;
using testing::Not;
using Kind = OnAirEvent::Kind;
using Paths = std::vector<std::string>;

class ChainOfDecksTest : public ChainFixture {
protected:
    void start_decks(const std::vector<double>& lengths) {
        open_on_all(lengths);
        station.main_window.mix_titles.click();
        controls(1).play.click();
    }
};

} // namespace

TEST_F(ChainOfDecksTest, StartsTheNextDeckSixSecondsBeforeTheEnd) {
    start_decks({100, 100, 100});
    machine.run_for(seconds(200));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {94, 2}, {188, 3}}));
}

TEST_F(ChainOfDecksTest, LetsTheOldDeckPlayOut) {
    start_decks({100, 100, 100});
    machine.run_for(seconds(97));
    EXPECT_EQ(machine.media.on_air(), (Paths{track(1), track(2)}));
    machine.run_for(seconds(5));
    EXPECT_EQ(machine.media.on_air(), Paths{track(2)});
}

TEST_F(ChainOfDecksTest, GoesRoundToADeckThatAnotherCutShort) {
    start_decks({100, 100, 100});
    machine.run_for(seconds(20));
    station.main_window.lire_3.click();
    machine.run_for(seconds(100));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {20, 3}, {114, 1}}));
}

TEST_F(ChainOfDecksTest, DeckThatIsReleasedInManualModeCanBeTakenUpAgain) {
    start_decks({100, 100, 100});
    machine.run_for(seconds(20));
    controls(1).zap.click();
    station.main_window.a_mode_manuel.click();
    controls(3).play.click();
    machine.run_for(seconds(15));
    EXPECT_THAT(machine.media.on_air(), Not(Contains(track(2))));
    controls(2).pause.click();
    EXPECT_THAT(machine.media.on_air(), Contains(track(2)));
}

TEST_F(ChainOfDecksTest, ReadsTheWholeFile) {
    start_decks({100, 60, 100});
    EXPECT_EQ(controls(1).counter.caption.get(), "100");
    machine.run_for(seconds(95));
    EXPECT_EQ(controls(2).counter.caption.get(), "60");
}

TEST_F(ChainOfDecksTest, FollowsAShortItemOneSecondBeforeItsEnd) {
    start_decks({20, 100, 100});
    machine.run_for(seconds(30));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {19, 2}}));
}

TEST_F(ChainOfDecksTest, ShowsWhatItWaitsFor) {
    start_decks({100, 100, 100});
    machine.run_for(seconds(5));
    EXPECT_EQ(station.main_window.chain_status.caption.get(), "Play 1 : player mix a 94");
    EXPECT_EQ(station.main_window.running_chain.caption.get(), " Mix lecteur : Play 1");
    EXPECT_EQ(station.list_window.running_deck.caption.get(), "Play 1 Mix lecteur");
    EXPECT_EQ(station.main_window.elapsed.caption.get(), "5");
    EXPECT_EQ(station.small_player.remaining.caption.get(), "95");
}

TEST_F(ChainOfDecksTest, FreesTheOpenButtonsOfTheOtherDecks) {
    start_decks({100, 100, 100});
    EXPECT_FALSE(controls(1).open.enabled);
    EXPECT_TRUE(controls(3).open.enabled);
    EXPECT_FALSE(controls(2).play.enabled);
    EXPECT_TRUE(controls(1).zap.enabled);
    EXPECT_FALSE(controls(3).zap.enabled);
    EXPECT_TRUE(controls(1).playing_mark.visible);
}

TEST_F(ChainOfDecksTest, GoesRoundTheRing) {
    start_decks({50, 60, 70});
    machine.run_for(seconds(300));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {44, 2}, {98, 3}, {162, 1}, {206, 2}, {260, 3}}));
}

TEST_F(ChainOfDecksTest, OverlapOfNothingRunsTheRingWithinOneTick) {
    start_decks({1, 1, 100});
    machine.run_for(seconds(1));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {1, 2}, {1, 3}}));
    EXPECT_EQ(station.chain.lecteur_en_cours, 3);
    EXPECT_EQ(machine.media.on_air().back(), track(3));
}

TEST_F(ChainOfDecksTest, OverlapOfNothingOnAllDecksGoesRoundTheRingOnce) {
    start_decks({1, 1, 1});
    machine.run_for(seconds(1));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {1, 2}, {1, 3}, {1, 1}}));
}

TEST_F(ChainOfDecksTest, OverlapOfNothingOnAllDecksHoldsNothingUp) {
    start_decks({1, 1, 1});
    machine.run_for(seconds(30));
    EXPECT_EQ(machine.time.now(), seconds(30));
    EXPECT_TRUE(station.main_window.deck_chain_timer.enabled());
}

TEST_F(ChainOfDecksTest, OverlapOfNothingBeforeEmptyDecksHoldsNothingUp) {
    start_decks({1});
    machine.run_for(seconds(30));
    EXPECT_EQ(times_of(Kind::started).size(), 1U);
}

TEST_F(ChainOfDecksTest, SeekPastTheMixPointIsFollowedAtTheEnd) {
    start_decks({100, 100, 100});
    machine.run_for(seconds(86));
    controls(1).forward.click();
    machine.run_for(seconds(6));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {90, 2}}));
}

TEST_F(ChainOfDecksTest, UnplayableNextDeckStopsItAloud) {
    start_decks({100, 100, 100});
    machine.run_for(seconds(50));
    machine.disk.Kill(track(2));
    machine.run_for(seconds(45));
    EXPECT_FALSE(station.main_window.deck_chain_timer.enabled());
    EXPECT_EQ(station.warning_window.lines.caption.get().substr(0, 24), "ATTENTION ERREUR ! T2\nFI");
}

TEST_F(ChainOfDecksTest, SuspendedChainWaits) {
    start_decks({100, 100, 100});
    station.chain.chaine_suspendue = true;
    machine.run_for(seconds(99));
    EXPECT_EQ(times_of(Kind::started).size(), 1U);
}

TEST_F(ChainOfDecksTest, ZapsAtAnyMoment) {
    start_decks({100, 100, 100});
    machine.run_for(seconds(3));
    station.list_window.zap.click();
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {3, 2}}));
    EXPECT_EQ(controls(1).title.caption.get(), " - En attente");
}

TEST_F(ChainOfDecksTest, ZapFadesTheOldDeckAndReleasesIt) {
    start_decks({100, 100, 100});
    machine.run_for(seconds(3));
    controls(1).zap.click();
    machine.run_for(seconds(9));
    EXPECT_EQ(machine.media.on_air().size(), 2U);
    EXPECT_GT(controls(1).slider.value(), 5);
    machine.run_for(seconds(2));
    EXPECT_EQ(machine.media.on_air(), Paths{track(2)});
    EXPECT_EQ(controls(1).slider.value(), 0);
}

TEST_F(ChainOfDecksTest, ZapToAMissingFileSaysSo) {
    start_decks({100, 100, 100});
    machine.disk.Kill(track(2));
    machine.dialogs.expect_box("Fichier non trouvé /abandon", Answer::ok);
    station.list_window.zap.click();
    EXPECT_EQ(machine.dialogs.last().icon, Icon::stop);
    EXPECT_EQ(machine.media.on_air(), Paths{track(1)});
}

TEST_F(ChainOfDecksTest, ZapToAnEmptyDeckDoesNothing) {
    start_decks({100});
    station.list_window.zap.click();
    EXPECT_EQ(machine.media.on_air(), Paths{track(1)});
}

TEST_F(ChainOfDecksTest, DeckThatHasMovedDoesNotStartAgain) {
    start_decks({100, 100, 100});
    machine.run_for(seconds(5));
    controls(1).play.click();
    EXPECT_EQ(times_of(Kind::started).size(), 1U);
    EXPECT_EQ(station.deck_ring.deck(1).graph().get_CurrentPosition(), 5.0);
}

TEST_F(ChainOfDecksTest, PlayWithoutAListChoosesIt) {
    open_on_all({100, 100, 100});
    station.list_window.defined_end_mode.click();
    controls(1).play.click();
    EXPECT_TRUE(station.main_window.mix_titles.value());
    EXPECT_TRUE(station.chain.mode_enchainement.is_false());
    machine.run_for(seconds(95));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {94, 2}}));
}

TEST_F(ChainOfDecksTest, FileShorterThanItsOverlapIsFollowedAtItsEnd) {
    station.settings.forcer_mix_jingles = 5;
    start_decks({4, 100, 100});
    machine.run_for(seconds(10));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {4, 2}}));
}

} // namespace sonarelle
