// A deck's bar under the operator's hand: what waits starts there, what is paused goes on there, the air stays.
#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

class DeckBar : public ChainFixture {
protected:
    void play_list_for(int seconds_played) {
        open_tracks({200, 200, 200});
        start_list();
        machine.run_for(seconds(seconds_played));
    }
    /// The operator presses a deck's bar at a second of its file.
    void press_bar(int deck, double second) {
        ProgressBar& bar = controls(deck).progress;
        bar.click_at(static_cast<int>(second / bar.maximum * DeckControls::bar_units));
    }
    [[nodiscard]] std::string refusal_of(int deck) { return controls(deck).progress.refusal(); }
    [[nodiscard]] double position_of(int deck) { return station.deck_ring.deck(deck).graph().get_CurrentPosition(); }
};

} // namespace

TEST_F(DeckBar, DeckThatWaitsBeginsWhereItsBarWasPressed) {
    open_on_all({100, 100, 100});
    press_bar(2, 64);
    EXPECT_EQ(controls(2).progress.value, 0) << "or it would count as one that has moved, which doesn't start";
    controls(2).play.click();
    EXPECT_EQ(position_of(2), 64.0);
    EXPECT_EQ(machine.media.on_air().size(), 1U);
}

TEST_F(DeckBar, NextDeckOfAListBeginsWhereItsBarWasPressed) {
    play_list_for(190);
    ASSERT_EQ(refusal_of(2), "");
    press_bar(2, 30);
    machine.run_for(seconds(6));
    EXPECT_EQ(position_of(2), 32.0);
}

TEST_F(DeckBar, FileThatIsLoadedNextBeginsAtItsOwnStart) {
    open_on_all({100, 100, 100});
    press_bar(2, 64);
    open_on(2, track(3));
    controls(2).play.click();
    EXPECT_EQ(position_of(2), 0.0);
}

TEST_F(DeckBar, StoppedDeckBeginsWhereItsBarWasPressed) {
    play_list_for(20);
    controls(1).stop.click();
    press_bar(1, 50);
    controls(1).play.click();
    EXPECT_EQ(position_of(1), 50.0);
}

TEST_F(DeckBar, DeckThatIsStoppedInAPauseBeginsWhereItsBarWasPressed) {
    play_list_for(20);
    controls(1).pause.click();
    controls(1).stop.click();
    ASSERT_EQ(refusal_of(1), "");
    press_bar(1, 50);
    controls(1).play.click();
    EXPECT_EQ(position_of(1), 50.0);
}

TEST_F(DeckBar, DeckThatIsSetGoingByItsPauseButtonBeginsWhereItsBarWasPressed) {
    open_on_all({100, 100, 100});
    press_bar(2, 64);
    controls(2).pause.click();
    EXPECT_EQ(position_of(2), 64.0);
}

TEST_F(DeckBar, StartByHandHoldsForOneStart) {
    open_on_all({100, 100, 100});
    press_bar(2, 64);
    controls(2).play.click();
    controls(2).stop.click();
    controls(2).play.click();
    EXPECT_EQ(position_of(2), 0.0);
}

TEST_F(DeckBar, PausedDeckGoesOnFromWhereItsBarWasPressed) {
    play_list_for(20);
    controls(1).pause.click();
    press_bar(1, 64);
    EXPECT_EQ(position_of(1), 64.0);
    EXPECT_EQ(controls(1).progress.value, 64);
    EXPECT_EQ(station.list_window.remaining.caption.get(), "00:02:16");
    controls(1).pause.click();
    machine.run_for(seconds(2));
    EXPECT_EQ(position_of(1), 66.0);
}

TEST_F(DeckBar, BarOfADeckOnTheAirStaysAndSaysWhy) {
    play_list_for(20);
    press_bar(1, 64);
    EXPECT_EQ(position_of(1), 20.0);
    EXPECT_EQ(refusal_of(1), "À l'antenne : le curseur ne se déplace pas");
}

TEST_F(DeckBar, BarOfADeckThatFadesOutStaysAndSaysWhy) {
    play_list_for(196);
    press_bar(1, 64);
    EXPECT_EQ(position_of(1), 196.0);
    EXPECT_EQ(refusal_of(1), "À l'antenne : le curseur ne se déplace pas");
}

TEST_F(DeckBar, BarOfADeckWithoutAFileSaysSo) {
    press_bar(3, 10);
    EXPECT_EQ(refusal_of(3), "Aucun fichier sur ce lecteur");
}

TEST_F(DeckBar, BarOfADeckAtItsEndSaysSo) {
    open_tracks({20});
    start_list();
    machine.run_for(seconds(30));
    ASSERT_TRUE(machine.media.on_air().empty());
    EXPECT_EQ(refusal_of(1), "Fin du fichier : le curseur ne se déplace plus");
}

TEST_F(DeckBar, BarOfNineHoursTellsSeconds) {
    open_on_all({9 * 3600, 100, 100});
    press_bar(1, 30001);
    controls(1).play.click();
    EXPECT_EQ(position_of(1), 30001.0);
}

} // namespace sonarelle
