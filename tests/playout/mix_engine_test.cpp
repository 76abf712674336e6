#include "playout/mix.h"

#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

class MixEngineTest : public ChainFixture {
protected:
    struct Mix {
        int overlap;
        int lead;
        friend bool operator==(const Mix&, const Mix&) = default;
    };

    Mix mix_of(std::string_view end_point) {
        station.chain.lecteur_en_cours = 1;
        station.chain.mode_enchainement = true;
        station.main_window.deck(1).counter.caption = std::string{end_point};
        station.mix_engine.Choix_mix();
        return {station.settings.mix_courant.value(), station.settings.prechargement.value()};
    }
};

} // namespace

TEST_F(MixEngineTest, OfAnEndUpToOneSecondHasNoOverlap) {
    EXPECT_EQ(mix_of("0"), (Mix{0, 3}));
    EXPECT_EQ(mix_of("1"), (Mix{0, 3}));
}

TEST_F(MixEngineTest, OfAnEndUpToThreeSecondsHasTheShortOverlap) {
    EXPECT_EQ(mix_of("2"), (Mix{1, 4}));
    EXPECT_EQ(mix_of("3"), (Mix{1, 4}));
}

TEST_F(MixEngineTest, OfFiveSecondsLoadsTwoSecondsAhead) {
    EXPECT_EQ(mix_of("5"), (Mix{1, 2}));
}

TEST_F(MixEngineTest, OfTwentySecondsLoadsFourSecondsAhead) {
    EXPECT_EQ(mix_of("20"), (Mix{1, 4}));
}

TEST_F(MixEngineTest, OfANormalTrackHasTheDefaults) {
    EXPECT_EQ(mix_of("31"), (Mix{6, 7}));
}

TEST_F(MixEngineTest, OfANormalTrackHeedsNoShortOverlapHoweverGreat) {
    station.settings.forcer_mix_jingles = 32767;
    EXPECT_EQ(mix_of("31"), (Mix{6, 7}));
}

TEST_F(MixEngineTest, OfFiveSecondsHeedsNoLeadOfALongerItem) {
    station.settings.forcer_mix_jingles = 32766;
    EXPECT_EQ(mix_of("5"), (Mix{32766, 32767}));
}

TEST_F(MixEngineTest, OfANegativeEndLeavesTheOverlap) {
    mix_of("31");
    EXPECT_EQ(mix_of("-1"), (Mix{6, 7}));
}

TEST_F(MixEngineTest, ReadsAnEndWithEitherMarkHalvesToEven) {
    EXPECT_EQ(mix_of("6.5"), (Mix{1, 2}));
    EXPECT_EQ(mix_of("7,5"), (Mix{1, 4}));
}

TEST_F(MixEngineTest, LoadsATrackOfThirtyOneSecondsAtEighteen) {
    open_tracks({31, 100});
    start_list();
    machine.run_for(seconds(20));
    EXPECT_EQ(times_of(OnAirEvent::Kind::loaded), (Times{{0, 1}, {18, 2}}));
}

TEST_F(MixEngineTest, GivesTheLoadLeadBackOnTheNextNormalTrack) {
    station.main_window.load_ahead.set_value(1);
    station.main_window.load_ahead.set_value(0);
    EXPECT_EQ(station.settings.prechargement, 0);
    EXPECT_EQ(mix_of("100"), (Mix{6, 7}));
}

TEST_F(MixEngineTest, OverlapFieldStopsAtOne) {
    station.main_window.overlap.set_text("1");
    station.main_window.overlap_less.click();
    EXPECT_EQ(station.main_window.overlap.text(), "1");
    EXPECT_EQ(station.settings.mix_defaut, 1);
}

TEST_F(MixEngineTest, OverlapThatMeetsTheLoadLeadPushesItAhead) {
    station.main_window.overlap.set_text("6");
    station.main_window.overlap_more.click();
    EXPECT_EQ(station.settings.prechargement, 9);
    station.main_window.overlap_less.click();
    EXPECT_EQ(station.settings.prechargement, 10);
}

TEST_F(MixEngineTest, OverlapFieldsCompanionGivesItItsValue) {
    EXPECT_EQ(station.main_window.overlap_steps.value(), 6);
    station.main_window.overlap_steps.set_value(9);
    EXPECT_EQ(station.main_window.overlap.text(), "9");
    EXPECT_EQ(station.settings.mix_courant, 9);
    EXPECT_EQ(station.settings.mix_defaut, 9);
    EXPECT_EQ(machine.settings.GetSetting(settings_application, "Config", "Mix", ""), "9");
    station.main_window.overlap_less.click();
    EXPECT_EQ(station.main_window.overlap_steps.value(), 8);
}

TEST_F(MixEngineTest, OverlapIsStoredAtOnce) {
    station.main_window.overlap_more.click();
    EXPECT_EQ(machine.settings.GetSetting(settings_application, "Config", "Mix", ""), "7");
}

TEST_F(MixEngineTest, SpecialMixOverItselfDoesNothing) {
    open_tracks({100, 100});
    start_list();
    machine.run_for(seconds(5));
    station.main_window.deck(1).special_mix.click();
    EXPECT_FALSE(station.main_window.Active_audio_jingles.checked);
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{track(1)});
}

TEST_F(MixEngineTest, SpecialMixLowersTheMainDeckAndBringsItBack) {
    open_tracks({100, 100});
    machine.add_track("C:\\jingle.mp3", 5);
    start_list();
    machine.run_for(seconds(5));
    station.chain.chemin_lecture2 = "C:\\jingle.mp3";
    station.main_window.deck(2).special_mix.click();
    EXPECT_EQ(station.main_window.deck(1).slider.value(), 2);
    EXPECT_EQ(machine.media.on_air().size(), 2U);
    machine.run_for(seconds(6));
    EXPECT_EQ(station.main_window.deck(1).slider.value(), 0);
    EXPECT_FALSE(station.main_window.Active_audio_jingles.checked);
}

TEST_F(MixEngineTest, TellsTheLoadLeadThatHolds) {
    mix_of("3");
    EXPECT_EQ(station.main_window.load_ahead.hint.get(), "Préchargement (4 s avant le mix) ");
}

} // namespace sonarelle
