#include "playout/deck_transport.h"

#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using Paths = std::vector<std::string>;

class DeckTransportTest : public ChainFixture {
protected:
    void play_list_for(int seconds_played) {
        open_tracks({200, 200, 200});
        start_list();
        machine.run_for(seconds(seconds_played));
    }
    [[nodiscard]] double position_of(int deck) { return station.deck_ring.deck(deck).graph().get_CurrentPosition(); }
};

} // namespace

TEST_F(DeckTransportTest, StopSilencesAndRewinds) {
    play_list_for(20);
    controls(1).stop.click();
    EXPECT_TRUE(machine.media.on_air().empty());
    EXPECT_EQ(position_of(1), 0.0);
    EXPECT_EQ(controls(1).title.caption.get(), " - En attente");
    EXPECT_EQ(controls(1).counter.caption.get(), "0");
    EXPECT_EQ(controls(1).progress.value, 0);
    EXPECT_EQ(station.list_window.remaining.caption.get(), "00:00:00");
    EXPECT_FALSE(controls(1).playing_mark.visible);
}

TEST_F(DeckTransportTest, StopInListModeLeavesTheChainWaiting) {
    play_list_for(20);
    controls(1).stop.click();
    EXPECT_TRUE(station.main_window.list_chain_timer.enabled());
    machine.run_for(seconds(600));
    EXPECT_TRUE(machine.media.on_air().empty());
    EXPECT_TRUE(station.main_window.list_chain_timer.enabled());
    EXPECT_EQ(times_of(OnAirEvent::Kind::started).size(), 1U);
}

TEST_F(DeckTransportTest, StoppedDeckPlaysAgainFromItsPlayButton) {
    play_list_for(20);
    controls(1).stop.click();
    controls(1).play.click();
    EXPECT_EQ(machine.media.on_air(), Paths{track(1)});
}

TEST_F(DeckTransportTest, StopOfTheMainDeckEndsTheSearchForATrack) {
    open_tracks({100});
    start_list();
    machine.run_for(seconds(95));
    controls(1).stop.click();
    machine.add_track("C:\\neuf.mp3", 100);
    rows().append({"C:\\neuf.mp3", "0.10", "100.00", "Rock", "100", ""});
    station.list_document.sauve_tout();
    machine.run_for(seconds(10));
    EXPECT_TRUE(machine.media.on_air().empty());
}

TEST_F(DeckTransportTest, StopSwitchesTheFadeOff) {
    play_list_for(196);
    EXPECT_TRUE(station.main_window.overlap_timer.enabled());
    controls(2).stop.click();
    EXPECT_FALSE(station.main_window.overlap_timer.enabled());
}

TEST_F(DeckTransportTest, StopOfAnEmptyDeckOnlyFreesItsSpecialMix) {
    controls(2).special_mix.enabled = false;
    controls(2).stop.click();
    EXPECT_TRUE(controls(2).special_mix.enabled);
    EXPECT_EQ(controls(2).title.caption.get(), "(Aucun fichier en cours)");
}

TEST_F(DeckTransportTest, StopWorksByHandToo) {
    open_on_all({100, 100, 100});
    station.main_window.a_mode_manuel.click();
    controls(2).play.click();
    machine.run_for(seconds(5));
    controls(2).stop.click();
    EXPECT_TRUE(machine.media.on_air().empty());
    EXPECT_EQ(position_of(2), 0.0);
    EXPECT_TRUE(controls(2).special_mix.enabled);
}

TEST_F(DeckTransportTest, StopOfAllDecksLeavesNoMainDeck) {
    play_list_for(196);
    EXPECT_EQ(machine.media.on_air().size(), 2U);
    station.list_window.stop_decks.click();
    EXPECT_TRUE(machine.media.on_air().empty());
    EXPECT_EQ(station.chain.lecteur_en_cours, 0);
    EXPECT_EQ(station.list_window.progress.caption.get(), "Liste");
}

TEST_F(DeckTransportTest, StopOfAllDecksKeepsTheStationSilent) {
    play_list_for(196);
    station.list_window.stop_decks.click();
    machine.run_for(seconds(600));
    EXPECT_TRUE(machine.media.on_air().empty());
}

TEST_F(DeckTransportTest, PauseHoldsThePositionAndTheClockTick) {
    play_list_for(20);
    controls(1).pause.click();
    machine.run_for(seconds(30));
    EXPECT_EQ(position_of(1), 20.0);
    EXPECT_EQ(controls(1).pause.caption.get(), "=>");
    EXPECT_FALSE(station.main_window.load_ahead_timer.enabled());
    EXPECT_TRUE(station.chain.lecteur_en_cours == 1);
}

TEST_F(DeckTransportTest, ResumeGoesOnWhereThePauseCame) {
    play_list_for(20);
    controls(1).pause.click();
    machine.run_for(seconds(30));
    controls(1).pause.click();
    machine.run_for(seconds(5));
    EXPECT_EQ(position_of(1), 25.0);
    EXPECT_EQ(controls(1).pause.caption.get(), "II");
    EXPECT_TRUE(station.main_window.load_ahead_timer.enabled());
}

TEST_F(DeckTransportTest, PausedTrackIsFollowedAtItsMixPoint) {
    play_list_for(20);
    controls(1).pause.click();
    machine.run_for(Frames{48000 * 30 + 17000});
    controls(1).pause.click();
    machine.run_for(seconds(180));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2}));
    EXPECT_EQ(times_of(OnAirEvent::Kind::loaded).size(), 2U);
}

TEST_F(DeckTransportTest, ResumeOfAnyDeckStartsTheClockTickAgain) {
    play_list_for(20);
    machine.add_track("C:\\b.mp3", 50);
    station.chain.chemin_lecture3 = "C:\\b.mp3";
    station.deck_ring.deck(3).create_graph();
    station.deck_ring.deck(3).graph().RenderFile("C:\\b.mp3");
    controls(1).pause.click();
    controls(3).pause.click();
    EXPECT_TRUE(station.main_window.load_ahead_timer.enabled());
}

TEST_F(DeckTransportTest, PausedTrackThatIsZappedLeavesItsDeckUnpaused) {
    play_list_for(40);
    controls(1).pause.click();
    station.list_window.zap.click();
    machine.run_for(seconds(30));
    EXPECT_EQ(controls(1).pause.caption.get(), "II");
    EXPECT_TRUE(station.deck_ring.deck(1).pause_lecteur.is_false());
}

TEST_F(DeckTransportTest, PauseWithoutAFileDoesNothing) {
    controls(3).pause.click();
    EXPECT_EQ(controls(3).pause.caption.get(), "II");
    EXPECT_TRUE(station.main_window.load_ahead_timer.enabled());
}

TEST_F(DeckTransportTest, ForwardStepsTenSecondsAndShowsTheRest) {
    play_list_for(20);
    controls(1).forward.click();
    EXPECT_EQ(position_of(1), 30.0);
    EXPECT_EQ(station.list_window.remaining.caption.get(), "00:02:50");
}

TEST_F(DeckTransportTest, ForwardToTheVeryEndIsDone) {
    play_list_for(190);
    controls(1).forward.click();
    EXPECT_EQ(position_of(1), 200.0);
}

TEST_F(DeckTransportTest, ForwardBehindTheEndIsNotDone) {
    play_list_for(191);
    controls(1).forward.click();
    EXPECT_EQ(position_of(1), 191.0);
}

TEST_F(DeckTransportTest, BackStepsAFifthOfASecond) {
    play_list_for(20);
    controls(1).back.click();
    EXPECT_NEAR(position_of(1), 19.8, 1e-4);
}

TEST_F(DeckTransportTest, BackBeforeTheBeginningIsNotDone) {
    play_list_for(0);
    controls(1).back.click();
    EXPECT_EQ(position_of(1), 0.0);
}

TEST_F(DeckTransportTest, SeekStepsAreThoseOfTheSession) {
    play_list_for(20);
    station.deck_transport.saut_avance = 60;
    station.deck_transport.saut_retour = 5;
    controls(1).forward.click();
    controls(1).back.click();
    EXPECT_EQ(position_of(1), 75.0);
}

TEST_F(DeckTransportTest, SeekPastTheMixPointIsFollowedAtTheEnd) {
    play_list_for(180);
    station.deck_transport.saut_avance = 16;
    controls(1).forward.click();
    machine.run_for(seconds(5));
    EXPECT_EQ(times_of(OnAirEvent::Kind::started), (Times{{0, 1}, {184, 2}}));
}

TEST_F(DeckTransportTest, SeekPastTheLoadPointLeavesTheLoadToTheMixPoint) {
    play_list_for(180);
    controls(1).forward.click();
    machine.run_for(seconds(5));
    EXPECT_EQ(times_of(OnAirEvent::Kind::loaded), (Times{{0, 1}, {184, 2}}));
    EXPECT_EQ(times_of(OnAirEvent::Kind::started), (Times{{0, 1}, {184, 2}}));
}

TEST_F(DeckTransportTest, UnloadTakesTheFileOffAnIdleDeck) {
    open_on_all({100, 100});
    station.main_window.A_décharge_2.click();
    EXPECT_EQ(station.chain.chemin_lecture2, "");
    EXPECT_EQ(controls(2).title.caption.get(), " - En attente");
    EXPECT_EQ(machine.media.graphs(), 1U);
}

TEST_F(DeckTransportTest, UnloadOfTheMainDeckDoesNothing) {
    play_list_for(20);
    station.main_window.A_décharge_1.click();
    EXPECT_EQ(machine.media.on_air(), Paths{track(1)});
    EXPECT_EQ(station.chain.chemin_lecture, track(1));
}

TEST_F(DeckTransportTest, UnloadOfTheFadingDeckEndsItsSound) {
    play_list_for(196);
    station.main_window.A_décharge_1.click();
    EXPECT_EQ(machine.media.on_air(), Paths{track(2)});
}

TEST_F(DeckTransportTest, StopClearsTheMarkersOfTheRun) {
    play_list_for(20);
    station.chain.index_debut_aleatoire = station.chain.index_debut_aleatoire1 = 4;
    controls(1).stop.click();
    EXPECT_EQ(station.chain.index_debut_aleatoire, 0);
    EXPECT_EQ(station.chain.index_debut_aleatoire1, 0);
}

TEST_F(DeckTransportTest, StopOfAPausedDeckEndsItsPausesSign) {
    play_list_for(20);
    controls(1).pause.click();
    controls(1).stop.click();
    EXPECT_EQ(controls(1).pause.caption.get(), "II");
}

TEST_F(DeckTransportTest, StopInTheChainOverDecksNamesTheDeck) {
    open_on_all({100, 100, 100});
    station.main_window.mix_titles.click();
    controls(2).play.click();
    controls(2).stop.click();
    EXPECT_EQ(station.main_window.chain_status.caption.get(), "Play 2");
}

TEST_F(DeckTransportTest, StopFreesTheOpenButtonAndTheListsClock) {
    play_list_for(196);
    station.list_window.time_of_day.enabled = false;
    controls(2).stop.click();
    EXPECT_TRUE(controls(2).open.enabled);
    EXPECT_TRUE(station.list_window.time_of_day.enabled);
}

TEST_F(DeckTransportTest, StopOfAListPutsItsTimerOnAndUnchecksTheChainsFadeRule) {
    play_list_for(20);
    station.main_window.Active_audio_jingles.click();
    station.main_window.list_chain_timer.disable();
    controls(1).stop.click();
    EXPECT_TRUE(station.main_window.list_chain_timer.enabled());
    EXPECT_FALSE(station.main_window.Active_audio_jingles.checked);
}

TEST_F(DeckTransportTest, PauseFreesThePlayButtonAndResumeTakesItBack) {
    play_list_for(20);
    controls(1).play.enabled = false;
    controls(1).pause.click();
    EXPECT_TRUE(controls(1).play.enabled);
    controls(1).pause.click();
    EXPECT_FALSE(controls(1).play.enabled);
}

TEST_F(DeckTransportTest, PauseGivesTheSliderOfTheStartBack) {
    play_list_for(20);
    controls(1).slider.set_value(6);
    controls(1).pause.click();
    EXPECT_EQ(controls(1).slider.value(), 0);
}

TEST_F(DeckTransportTest, UnloadClosesAPicturesWindow) {
    machine.add_track("C:\\film.wmv", 60);
    machine.media.set_video("C:\\film.wmv");
    open_on(1, "C:\\film.wmv");
    controls(1).play.click();
    controls(1).stop.click();
    station.chain.lecteur_en_cours = 2;
    station.main_window.A_décharge_1.click();
    EXPECT_EQ(machine.media.graphs(), 0U);
}

} // namespace sonarelle
