// A special mix ends whenever its deck leaves or its rule changes, and the chain goes on.
#include "playout/air_view.h"
#include "playout/special_mix_fixture.h"

namespace sonarelle {

namespace {

using Kind = OnAirEvent::Kind;

class SpecialMixEnd : public SpecialMixFixture {
protected:
    /// Half a minute is mixed over the list's first track from its sixth second on.
    void mix_on(int deck, int length = 30) {
        play_list_with_jingle_on(deck);
        machine.media.set_length("C:\\jingle.mp3", length);
        controls(deck).special_mix.click();
        machine.run_for(seconds(2));
    }
    void mix_on_second_and_third_deck() {
        mix_on(2);
        machine.add_track("C:\\annonce.mp3", 20);
        station.chain.chemin_lecture3 = "C:\\annonce.mp3";
        controls(3).special_mix.click();
        machine.run_for(seconds(2));
    }
    void expect_ended(int deck) {
        EXPECT_EQ(controls(1).slider.value(), 0);
        EXPECT_FALSE(window.Active_audio_jingles.checked);
        EXPECT_EQ(station.chain.lecteur_mix_special, 0);
        EXPECT_EQ(controls(deck).progress.caption.get(), "");
        EXPECT_EQ(controls(deck).progress.value, 0);
        EXPECT_TRUE(controls(deck).special_mix.enabled);
    }
    void expect_chain_goes_on() {
        machine.run_for(seconds(100));
        EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {94, 2}}));
        EXPECT_TRUE(window.list_chain_timer.enabled());
    }
};

} // namespace

TEST_F(SpecialMixEnd, AtTheEndOfItsFileLeavesNoDeckToServe) {
    mix_on(2, 5);
    machine.run_for(seconds(5));
    expect_ended(2);
}

TEST_F(SpecialMixEnd, FadingDeckThatIsReleasedLetsTheListGoOn) {
    open_tracks({100, 100, 100});
    start_list();
    machine.run_for(seconds(98));
    controls(1).special_mix.click();
    machine.run_for(seconds(150));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {94, 2}, {188, 3}}));
}

TEST_F(SpecialMixEnd, FadingDeckThatIsReleasedGivesTheTrackItsVolumeBack) {
    open_tracks({100, 100, 100});
    start_list();
    machine.run_for(seconds(98));
    controls(1).special_mix.click();
    machine.run_for(seconds(12));
    EXPECT_EQ(controls(2).slider.value(), 0);
    EXPECT_FALSE(window.Active_audio_jingles.checked);
}

TEST_F(SpecialMixEnd, FadingDeckThatIsReleasedLetsTheChainOverDecksGoOn) {
    open_on_all({100, 100, 100});
    window.mix_titles.click();
    controls(1).play.click();
    machine.run_for(seconds(50));
    controls(1).zap.click();
    machine.run_for(seconds(4));
    controls(1).special_mix.click();
    machine.run_for(seconds(100));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {50, 2}, {144, 3}}));
}

TEST_F(SpecialMixEnd, UnloadOfItsDeckEndsIt) {
    mix_on(2);
    window.A_décharge_2.click();
    expect_ended(2);
    expect_chain_goes_on();
}

TEST_F(SpecialMixEnd, StopOfItsDeckEndsIt) {
    mix_on(2);
    controls(2).stop.click();
    expect_ended(2);
}

TEST_F(SpecialMixEnd, FileOpenedOnItsDeckEndsIt) {
    mix_on(2);
    machine.add_track("C:\\autre.mp3", 50);
    machine.dialogs.expect_box("est à l'antenne", Answer::yes);
    open_on(2, "C:\\autre.mp3");
    expect_ended(2);
}

TEST_F(SpecialMixEnd, RowLoadedOnItsDeckEndsIt) {
    mix_on(2);
    rows().select(3);
    machine.dialogs.expect_box("jingle est à l'antenne", Answer::yes);
    station.list_window.char2.click();
    expect_ended(2);
    EXPECT_FALSE(hears_jingle());
}

TEST_F(SpecialMixEnd, ListThatStartsOnItsDeckEndsIt) {
    play_list_with_jingle_on(2);
    machine.run_for(seconds(110));
    window.mix_titles.click(); // a list that runs can't be started
    station.chain.chemin_lecture = "C:\\jingle.mp3";
    controls(1).special_mix.click();
    rows().select(1);
    station.list_window.play_list.click();
    EXPECT_FALSE(window.Active_audio_jingles.checked);
    EXPECT_EQ(station.chain.lecteur_mix_special, 0);
}

TEST_F(SpecialMixEnd, ManualModeEndsItWithoutOfferingAnother) {
    mix_on(2);
    station.chain.chemin_lecture3 = track(3);
    window.a_mode_manuel.click();
    EXPECT_EQ(controls(1).slider.value(), 0);
    EXPECT_FALSE(window.Active_audio_jingles.checked);
    EXPECT_EQ(station.chain.lecteur_mix_special, 0);
    EXPECT_EQ(controls(2).progress.caption.get(), "");
    EXPECT_FALSE(controls(2).special_mix.enabled);
}

TEST_F(SpecialMixEnd, DeckThatTheRingDropsIsEmpty) {
    mix_on(3);
    controls(1).zap.click();
    EXPECT_EQ(station.chain.lecteur_mix_special, 0);
    EXPECT_EQ(controls(3).progress.caption.get(), "");
    EXPECT_EQ(role_of(station.desk, station.deck_ring.deck(3)), DeckRole::empty);
}

TEST_F(SpecialMixEnd, AnotherMixLowersTheTrackOnce) {
    mix_on_second_and_third_deck();
    EXPECT_EQ(controls(1).slider.value(), 2);
}

TEST_F(SpecialMixEnd, AnotherMixFreesTheFirstDeck) {
    mix_on_second_and_third_deck();
    EXPECT_EQ(controls(2).progress.caption.get(), "");
    EXPECT_TRUE(controls(2).special_mix.enabled);
    EXPECT_EQ(station.chain.lecteur_mix_special, 3);
}

TEST_F(SpecialMixEnd, AnotherMixLeavesTheFirstOnesSound) {
    mix_on_second_and_third_deck();
    EXPECT_TRUE(hears_jingle());
}

TEST_F(SpecialMixEnd, AnotherMixGivesTheVolumeBackAtItsEnd) {
    mix_on_second_and_third_deck();
    machine.run_for(seconds(20));
    expect_ended(3);
}

TEST_F(SpecialMixEnd, AnotherMixThatCannotBePlayedLeavesTheFirst) {
    mix_on(2);
    station.chain.chemin_lecture3 = "C:\\absent.mp3";
    controls(3).special_mix.click();
    EXPECT_EQ(station.chain.lecteur_mix_special, 2);
    EXPECT_EQ(controls(1).slider.value(), 2);
}

TEST_F(SpecialMixEnd, EachFadeRuleOfTheMenuEndsIt) {
    mix_on(2);
    for (MenuItem* rule : {&window.Active_audio, &window.Active_audio_zapping}) {
        rule->click();
        expect_ended(2);
        EXPECT_TRUE(rule->checked);
        controls(2).special_mix.click();
        machine.run_for(seconds(1));
    }
    window.Désactive_audio.click();
    expect_ended(2);
}

TEST_F(SpecialMixEnd, ReadingModeOfTheListEndsIt) {
    mix_on(2);
    station.list_window.full_length_mode.click();
    expect_ended(2);
    expect_chain_goes_on();
}

TEST_F(SpecialMixEnd, RuleOfTheChainItselfLeavesItUnderWay) {
    mix_on(2);
    window.Active_audio_jingles.click();
    EXPECT_EQ(station.chain.lecteur_mix_special, 2);
}

TEST_F(SpecialMixEnd, RuleOfTheChainChosenLongBehindAMixStopsNothing) {
    play_list_with_jingle_on(3);
    controls(3).special_mix.click();
    machine.run_for(seconds(40));
    window.Active_audio_jingles.click();
    machine.run_for(seconds(60));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {94, 2}}));
    EXPECT_EQ(station.warning_window.lines.caption.get().find("ATTENTION ERREUR"), std::string::npos);
}

TEST_F(SpecialMixEnd, PressedAgainOnItsDeckBeginsAnew) {
    mix_on(2);
    window.Mix2.click();
    EXPECT_EQ(controls(1).slider.value(), 2);
    EXPECT_EQ(station.deck_ring.deck(2).graph().get_CurrentPosition(), 0.0);
    machine.run_for(seconds(31));
    expect_ended(2);
}

TEST_F(SpecialMixEnd, LoadSecondWithinItLeavesItsSound) {
    play_list_with_jingle_on(2);
    machine.run_for(seconds(80));
    controls(2).special_mix.click();
    machine.run_for(seconds(3));
    EXPECT_TRUE(hears_jingle());
    EXPECT_EQ(times_of(Kind::loaded).size(), 1U);
    machine.run_for(seconds(6));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {94, 2}}));
}

TEST_F(SpecialMixEnd, TrueSecondIsShownWhileItHoldsTheList) {
    mix_on(2);
    machine.run_for(seconds(10));
    EXPECT_EQ(window.elapsed.caption.get(), "17");
    EXPECT_EQ(controls(1).progress.value, 17);
    EXPECT_EQ(station.list_window.progress.caption.get(), "( 17 / 94 )");
}

TEST_F(SpecialMixEnd, TrueSecondIsShownWhileItHoldsTheChainOverDecks) {
    mix_over_the_chain_of_decks();
    machine.run_for(seconds(10));
    EXPECT_EQ(window.elapsed.caption.get(), "13");
    EXPECT_EQ(controls(1).progress.value, 13);
}

TEST_F(SpecialMixEnd, ChainWaitsForItAndNoLonger) {
    mix_on(2, 5);
    EXPECT_TRUE(waits_for_special_mix(station.desk));
    machine.run_for(seconds(5));
    EXPECT_FALSE(waits_for_special_mix(station.desk));
}

TEST_F(SpecialMixEnd, WindowsTitleNamesTheAir) {
    mix_on(2);
    EXPECT_NE(window.caption.get().find("titre 1"), std::string::npos);
}

TEST_F(SpecialMixEnd, OneThatOutlastsTheTrackIsToldBefore) {
    mix_on(2, 120);
    const std::string told = station.warning_window.lines.caption;
    EXPECT_EQ(told, "Le mixage spécial dure 120 s\nLe titre à l'antenne s'enchaîne dans 89 s\n"
                    "La suite attendra la fin du mixage");
    EXPECT_TRUE(station.warning_window.visible);
}

TEST_F(SpecialMixEnd, OneThatFitsIntoTheTrackIsNotTold) {
    mix_on(2, 89);
    EXPECT_EQ(station.warning_window.lines.caption.get(), "");
}

TEST_F(SpecialMixEnd, BeginsAsLoudAsItsSliderShows) {
    play_list_with_jingle_on(2);
    controls(2).slider.set_value(4);
    controls(2).special_mix.click();
    EXPECT_EQ(station.deck_ring.deck(2).graph().get_Volume(), Millibel{-800});
}

} // namespace sonarelle
