#include "playout/mix.h"
#include "playout/special_mix_fixture.h"

namespace sonarelle {

namespace {

using Kind = OnAirEvent::Kind;

using SpecialMixTest = SpecialMixFixture;

/// The second or third deck.
class SpecialMixOfADeck : public SpecialMixTest, public testing::WithParamInterface<int> {};

} // namespace

TEST_P(SpecialMixOfADeck, PlaysOverTheMainDeckAndEnds) {
    play_list_with_jingle_on(GetParam());
    controls(GetParam()).special_mix.click();
    EXPECT_TRUE(hears_jingle());
    EXPECT_EQ(station.chain.lecteur_en_cours, 1);
    EXPECT_EQ(controls(1).slider.value(), 2);
    EXPECT_EQ(controls(GetParam()).progress.caption.get(), "Mixage spécial en cours (5 S)");
    EXPECT_EQ(controls(GetParam()).counter.caption.get(), "5");
    EXPECT_FALSE(controls(GetParam()).special_mix.enabled);
    machine.run_for(seconds(6));
    EXPECT_FALSE(hears_jingle());
    EXPECT_EQ(controls(1).slider.value(), 0);
    EXPECT_EQ(controls(GetParam()).progress.caption.get(), "");
    EXPECT_TRUE(controls(GetParam()).special_mix.enabled);
}

INSTANTIATE_TEST_SUITE_P(Decks, SpecialMixOfADeck, testing::Values(2, 3));

TEST_F(SpecialMixTest, OfTheFirstDeckPlaysOverTheSecond) {
    play_list_with_jingle_on(1);
    machine.run_for(seconds(110));
    ASSERT_EQ(station.chain.lecteur_en_cours, 2);
    station.chain.chemin_lecture = "C:\\jingle.mp3";
    window.Mix1.click();
    EXPECT_TRUE(hears_jingle());
    EXPECT_EQ(controls(2).slider.value(), 2);
    machine.run_for(seconds(6));
    EXPECT_EQ(controls(2).slider.value(), 0);
}

TEST_F(SpecialMixTest, LowersAndGivesBackATrackBelowFullVolume) {
    for (const int row : {1, 2})
        machine.add_track(track(row), 200);
    machine.add_track("C:\\jingle.mp3", 5);
    open_list("C:\\Sonarelle\\essai.dfm", {record_of(track(1), "100"), record_of(track(2), "200", 50)});
    rows().select(1);
    start_list();
    machine.run_for(seconds(120));
    const auto volume = [this] { return station.deck_ring.deck(2).graph().get_Volume(); };
    station.chain.chemin_lecture3 = "C:\\jingle.mp3";
    controls(3).special_mix.click();
    EXPECT_EQ(volume(), Millibel{-2400});
    machine.run_for(seconds(6));
    EXPECT_EQ(volume(), Millibel{-2000});
}

TEST_F(SpecialMixTest, HoldsTheChainUntilItsEnd) {
    play_list_with_jingle_on(2);
    machine.run_for(seconds(87));
    controls(3).special_mix.enabled = true;
    station.chain.chemin_lecture3 = "C:\\jingle.mp3";
    controls(3).special_mix.click();
    machine.run_for(seconds(9));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {100, 2}}));
}

TEST_F(SpecialMixTest, WithoutAFileShowsAnEmptyDeck) {
    play_list_with_jingle_on(2);
    station.chain.chemin_lecture3.clear();
    controls(3).special_mix.click();
    EXPECT_EQ(controls(3).title.caption.get(), "(Aucun fichier en cours)");
    EXPECT_FALSE(window.Active_audio_jingles.checked);
}

TEST_F(SpecialMixTest, OfAnUnplayableFileShowsAnEmptyDeck) {
    play_list_with_jingle_on(2);
    machine.media.set_unplayable("C:\\jingle.mp3");
    controls(2).special_mix.click();
    EXPECT_EQ(controls(2).title.caption.get(), "(Aucun fichier en cours)");
    EXPECT_EQ(controls(1).slider.value(), 0);
}

TEST_F(SpecialMixTest, OfTheThirdDeckAloneResumesASuspendedChain) {
    play_list_with_jingle_on(2);
    station.chain.chaine_suspendue = true;
    controls(2).special_mix.click();
    EXPECT_TRUE(station.chain.chaine_suspendue.is_true());
    controls(3).special_mix.click();
    EXPECT_TRUE(station.chain.chaine_suspendue.is_false());
}

TEST_F(SpecialMixTest, OverTheChainOfDecksLeavesTheFadeOnZap) {
    open_on_all({100, 5, 100});
    window.mix_titles.click();
    window.Active_audio.enabled = true;
    controls(1).play.click();
    window.Active_audio.click();
    controls(2).special_mix.click();
    machine.run_for(seconds(7));
    EXPECT_TRUE(window.Active_audio_zapping.checked);
    EXPECT_FALSE(window.Active_audio_jingles.checked);
    EXPECT_FALSE(window.Active_audio.checked);
}

TEST_F(SpecialMixTest, OverAListLeavesNoFadeRule) {
    play_list_with_jingle_on(2);
    controls(2).special_mix.click();
    machine.run_for(seconds(7));
    for (const MenuItem* rule : window.fade_rules())
        EXPECT_FALSE(rule->checked);
}

TEST_F(SpecialMixTest, StopOfItsDeckLetsTheChainGoOn) {
    play_list_with_jingle_on(2);
    machine.media.set_length("C:\\jingle.mp3", 50);
    controls(2).special_mix.click();
    machine.run_for(seconds(3));
    controls(2).stop.click();
    EXPECT_FALSE(window.Active_audio_jingles.checked);
    EXPECT_EQ(controls(1).slider.value(), 0);
    machine.run_for(seconds(90));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {94, 2}}));
}

TEST_F(SpecialMixTest, StopOfItsDeckLetsTheChainOverDecksGoOn) {
    mix_over_the_chain_of_decks();
    controls(2).stop.click();
    machine.run_for(seconds(95));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {94, 2}}));
}

TEST_F(SpecialMixTest, StopOfItsDeckOverTheChainOfDecksLeavesTheFadeOnZap) {
    mix_over_the_chain_of_decks();
    controls(2).stop.click();
    EXPECT_TRUE(window.Active_audio_zapping.checked);
    EXPECT_FALSE(window.Active_audio_jingles.checked);
}

TEST_F(SpecialMixTest, ResumeOfItsDeckBehindItsEndLowersNothing) {
    play_list_with_jingle_on(2);
    controls(2).special_mix.click();
    machine.run_for(seconds(7));
    controls(2).pause.click();
    controls(2).pause.click();
    EXPECT_EQ(controls(1).slider.value(), 0);
}

TEST_F(SpecialMixTest, ResumeOfItsDeckBehindItsStopLowersNothing) {
    play_list_with_jingle_on(2);
    controls(2).special_mix.click();
    machine.run_for(seconds(2));
    controls(2).stop.click();
    controls(2).pause.click();
    EXPECT_EQ(controls(1).slider.value(), 0);
}

TEST_F(SpecialMixTest, StopOfAnotherDeckOfTheChainOfDecksLeavesItUnderWay) {
    mix_over_the_chain_of_decks();
    controls(3).stop.click();
    EXPECT_TRUE(window.Active_audio_jingles.checked);
}

TEST_F(SpecialMixTest, StopOfTheMainDeckLeavesItsSliderAsItWasBefore) {
    play_list_with_jingle_on(2);
    controls(1).slider.set_value(3);
    controls(2).special_mix.click();
    EXPECT_EQ(controls(1).slider.value(), 5);
    controls(1).stop.click();
    EXPECT_EQ(controls(1).slider.value(), 3);
}

TEST_P(SpecialMixOfADeck, EndsWithAZapAndTheChainGoesOn) {
    play_list_with_jingle_on(GetParam());
    machine.media.set_length("C:\\jingle.mp3", 20);
    machine.run_for(seconds(30));
    controls(GetParam()).special_mix.click();
    machine.run_for(seconds(5));
    station.list_window.zap.click();
    EXPECT_FALSE(hears_jingle());
    EXPECT_FALSE(window.Active_audio_jingles.checked);
    EXPECT_TRUE(controls(GetParam()).special_mix.enabled);
    machine.run_for(seconds(95));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {40, 2}, {134, 3}}));
}

TEST_F(SpecialMixTest, OverlapFieldTakesAStepFromOneAtLeast) {
    window.overlap.set_text("-4");
    window.overlap_more.click();
    EXPECT_EQ(window.overlap.text(), "1");
    window.overlap.set_text("9");
    window.overlap_less.click();
    EXPECT_EQ(window.overlap.text(), "8");
    EXPECT_EQ(window.overlap.hint.get(), "Superposition de : 8 seconde(s)");
}

TEST_F(SpecialMixTest, OverlapFieldThatIsNoNumberSaysSo) {
    window.overlap.set_text("six");
    machine.dialogs.expect_box("", Answer::ok);
    window.overlap_less.click();
    EXPECT_EQ(window.overlap.text(), "six");
}

TEST_F(SpecialMixTest, LoadLeadIsShownInTheHintOfItsSwitch) {
    window.load_ahead.set_value(1);
    EXPECT_EQ(window.load_ahead.hint.get(), "Préchargement (7 s avant le mix) ");
    window.load_ahead.click();
    EXPECT_EQ(station.settings.prechargement, 0);
    EXPECT_FALSE(window.load_ahead_timer.enabled());
}

TEST_F(SpecialMixTest, PauseOfItsDeckGivesTheTrackItsVolumeAndResumeLowersItAgain) {
    play_list_with_jingle_on(2);
    controls(2).special_mix.click();
    machine.run_for(seconds(1));
    controls(2).pause.click();
    EXPECT_EQ(controls(1).slider.value(), 0);
    controls(2).pause.click();
    EXPECT_EQ(controls(1).slider.value(), 2);
}

TEST_F(SpecialMixTest, ReadiesThePauseOfItsDeck) {
    play_list_with_jingle_on(2);
    controls(2).pause.enabled = false;
    controls(2).special_mix.click();
    EXPECT_TRUE(controls(2).pause.enabled);
}

TEST_F(SpecialMixTest, TakesAOneOffListeningBack) {
    play_list_with_jingle_on(2);
    station.chain.ecoute_demandee = true;
    controls(2).special_mix.click();
    EXPECT_TRUE(station.chain.ecoute_demandee.is_false());
}

TEST_F(SpecialMixTest, ShowsTheStationsBanner) {
    play_list_with_jingle_on(2);
    controls(2).special_mix.click();
    EXPECT_EQ(window.chain_status.caption.get(), "- - " + station.settings.nom_radio + " - -");
}

TEST_F(SpecialMixTest, BarShowsHowFarItIs) {
    play_list_with_jingle_on(2);
    machine.media.set_length("C:\\jingle.mp3", 20);
    controls(2).special_mix.click();
    machine.run_for(seconds(4));
    EXPECT_EQ(controls(2).progress.maximum, 20);
    EXPECT_EQ(controls(2).progress.value, 4);
}

TEST_F(SpecialMixTest, RuleOfTheChainWithoutAMixIsTakenBackAtTheNextTick) {
    play_list_with_jingle_on(2);
    window.Active_audio_jingles.click();
    machine.run_for(seconds(1));
    EXPECT_FALSE(window.Active_audio_jingles.checked);
    EXPECT_EQ(window.running_chain.caption.get(), "Chargement rapide");
}

TEST_F(SpecialMixTest, RuleOfTheChainWithoutAMixBecomesTheFadeOnZapOverDecks) {
    open_on_all({100, 60, 100});
    window.mix_titles.click();
    controls(1).play.click();
    window.Active_audio_jingles.click();
    machine.run_for(seconds(1));
    EXPECT_FALSE(window.Active_audio_jingles.checked);
    EXPECT_TRUE(window.Active_audio_zapping.checked);
}

TEST_F(SpecialMixTest, OfTheMainDeckDoesNothing) {
    play_list_with_jingle_on(2);
    controls(1).special_mix.click();
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{track(1)});
    EXPECT_FALSE(window.Active_audio_jingles.checked);
}

TEST_F(SpecialMixTest, OneUnderTheAirLowersByTheStationsSteps) {
    play_list_with_jingle_on(2);
    station.settings.mix_audio_attenuation = 5;
    controls(2).special_mix.click();
    EXPECT_EQ(controls(1).slider.value(), 5);
}

} // namespace sonarelle
