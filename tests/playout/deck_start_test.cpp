#include "playout/deck_start.h"

#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using Kind = OnAirEvent::Kind;

using DeckStartTest = ChainFixture;

int count_of(const std::string& text, std::string_view part) {
    int count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

} // namespace

TEST_F(DeckStartTest, CounterThatIsFullStaysAndTheListGoesOn) {
    open_tracks({100, 100, 100});
    start_list();
    station.chain.nb_fichiers_ecoutes = 32766;
    machine.run_for(seconds(300));
    EXPECT_EQ(station.chain.nb_fichiers_ecoutes, 32767);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2, 3, 1}));
}

TEST_F(DeckStartTest, FirstTrackOfARunIsNotCounted) {
    open_tracks({100, 100});
    start_list();
    EXPECT_EQ(station.chain.nb_fichiers_ecoutes, 0);
    machine.run_for(seconds(95));
    EXPECT_EQ(station.chain.nb_fichiers_ecoutes, 1);
}

TEST_F(DeckStartTest, CounterThatIsFullIsJournalledOnce) {
    station.main_window.Active_journal.click();
    open_tracks({100, 100, 100});
    start_list();
    station.chain.nb_fichiers_ecoutes = 32766;
    machine.run_for(seconds(300));
    EXPECT_EQ(count_of(journal_text(), "passement de capacit"), 1);
}

TEST_F(DeckStartTest, CountersOfTheInsertionsThatAreFullStay) {
    open_tracks({100, 100});
    start_list();
    station.settings.valide_fichier_aleatoire = true;
    station.chain.compteur_aleatoire = station.chain.compteur_aleatoire1 = 32767;
    machine.run_for(seconds(94));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2}));
    EXPECT_EQ(station.chain.compteur_aleatoire, 32767);
}

TEST_F(DeckStartTest, EachTrackKeepsTheVolumeThatAPauseGivesBack) {
    machine.add_track(track(1), 100);
    machine.add_track(track(2), 100);
    open_list("C:\\Sonarelle\\essai.dfm", {record_of(track(1), "100"), record_of(track(2), "100", 50)});
    rows().select(1);
    start_list();
    machine.run_for(seconds(120));
    controls(2).slider.set_value(4);
    controls(2).pause.click();
    EXPECT_EQ(controls(2).slider.value(), 10);
}

TEST_F(DeckStartTest, WaitingDeckStartsAsLoudAsItsSliderShows) {
    open_on_all({100, 100, 100});
    station.main_window.mix_titles.click();
    controls(1).play.click();
    controls(2).slider.set_value(10);
    machine.run_for(seconds(95));
    ASSERT_EQ(times_of(Kind::started), (Times{{0, 1}, {94, 2}}));
    EXPECT_EQ(station.deck_ring.deck(2).graph().get_Volume(), Millibel{-2000});
    EXPECT_EQ(controls(2).slider.value(), 10);
}

TEST_F(DeckStartTest, RecordsVolumeIsThatOfTheRowWhateverWasReadSince) {
    for (const int row : {1, 2, 3})
        machine.add_track(track(row), 100);
    open_list("C:\\Sonarelle\\essai.dfm",
              {record_of(track(1), "100"), record_of(track(2), "100", 50), record_of(track(3), "100", 20)});
    rows().select(1);
    start_list();
    rows().select(2);
    station.list_window.char2.click();
    rows().select(3);
    station.list_window.char3.click();
    controls(2).play.enabled = true;
    controls(2).play.click();
    EXPECT_EQ(station.deck_ring.deck(2).graph().get_Volume(), Millibel{-2000});
}

TEST_F(DeckStartTest, DeckThatTheRingDropsIsNotMadeLouderAtItsEnd) {
    open_tracks({200, 200, 200});
    start_list();
    machine.run_for(seconds(10));
    controls(1).zap.click();
    machine.run_for(seconds(2));
    machine.media.clear_log();
    controls(2).zap.click();
    for (const MediaCommand& command : machine.media.log())
        EXPECT_FALSE(command.action == MediaAction::volume && command.path == track(1)) << command.value;
    EXPECT_EQ(controls(1).slider.value(), 0);
}

TEST_F(DeckStartTest, ByHandOverTheMainDeckLeavesADeckThatWaits) {
    open_on_all({100, 100});
    controls(1).play.click();
    machine.run_for(seconds(10));
    machine.add_track(track(3), 100);
    open_on(3, track(3));
    controls(3).play.click();
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{track(3)});
    EXPECT_EQ(controls(1).title.caption.get(), waiting_title);
    EXPECT_EQ(controls(1).progress.value, 0);
    EXPECT_EQ(controls(1).counter.caption.get(), "0");
}

TEST_F(DeckStartTest, TrackOfExactlyTheLongestJingleIsFollowedWithoutAFade) {
    open_tracks({36, 100, 100});
    start_list();
    machine.run_for(seconds(35));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {30, 2}}));
    EXPECT_TRUE(times_of(Kind::fade_began).empty());
}

TEST_F(DeckStartTest, TrackBeyondTheLongestJingleIsFollowedWithAFade) {
    open_tracks({37, 100, 100});
    start_list();
    machine.run_for(seconds(36));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {31, 2}}));
    EXPECT_EQ(times_of(Kind::fade_began).size(), 1U);
}

TEST_F(DeckStartTest, ZapButtonOfTheMainDeckIsOnBehindTheOverlapAndTheOtherOff) {
    open_tracks({100, 100, 100});
    start_list();
    machine.run_for(seconds(95));
    controls(2).zap.enabled = false;
    controls(1).zap.enabled = true;
    machine.run_for(seconds(13));
    EXPECT_TRUE(controls(2).zap.enabled);
    EXPECT_FALSE(controls(1).zap.enabled);
}

TEST_F(DeckStartTest, TakesPlayAndZapFromTheOtherDecks) {
    open_tracks({100, 100, 100});
    start_list();
    machine.run_for(seconds(94));
    for (const int other : {1, 3}) {
        EXPECT_FALSE(controls(other).play.enabled);
        EXPECT_FALSE(controls(other).zap.enabled);
        EXPECT_TRUE(controls(other).open.enabled || other == 3);
    }
    EXPECT_TRUE(controls(2).play.enabled);
    EXPECT_TRUE(controls(2).zap.enabled);
    EXPECT_FALSE(controls(2).open.enabled);
}

TEST_F(DeckStartTest, ByHandLeavesTheOtherDecksTheirButtonsInManualMode) {
    open_on_all({100, 100, 100});
    station.main_window.a_mode_manuel.click();
    controls(1).play.click();
    EXPECT_TRUE(controls(2).play.enabled);
    EXPECT_TRUE(controls(3).play.enabled);
}

TEST_F(DeckStartTest, ByHandLeavesTheOtherDecksTheirSoundInManualMode) {
    open_on_all({100, 100, 100});
    station.main_window.a_mode_manuel.click();
    controls(2).play.click();
    controls(1).play.click();
    EXPECT_EQ(machine.media.on_air(), (std::vector<std::string>{track(2), track(1)}));
}

TEST_F(DeckStartTest, TurnsItsTitleAndNoOtherOnesInAChain) {
    open_tracks({100, 100, 100});
    start_list();
    machine.run_for(seconds(94));
    EXPECT_TRUE(controls(2).scroll_timer.enabled());
    EXPECT_FALSE(controls(1).scroll_timer.enabled());
}

TEST_F(DeckStartTest, MarksTheMainDeckAlone) {
    open_tracks({100, 100, 100});
    start_list();
    machine.run_for(seconds(94));
    EXPECT_FALSE(controls(1).playing_mark.visible);
    EXPECT_TRUE(controls(2).playing_mark.visible);
}

TEST_F(DeckStartTest, CountsItsMixPointFromItsOwnBeginning) {
    open_tracks({100, 100, 100});
    start_list();
    machine.run_for(milliseconds(40500));
    controls(1).zap.click();
    machine.run_for(seconds(95));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {40.5, 2}, {134.5, 3}}));
}

TEST_F(DeckStartTest, FillsTheMarkersOfARunOnce) {
    open_tracks({100, 100, 100});
    start_list();
    station.list.index_en_cours = 2;
    machine.add_track("C:\\main.mp3", 100);
    open_on(2, "C:\\main.mp3");
    controls(2).play.click();
    EXPECT_EQ(station.chain.index_debut_aleatoire, 2);
    EXPECT_EQ(station.chain.index_debut_aleatoire1, 2);
    station.list.index_en_cours = 3;
    controls(2).play.click();
    EXPECT_EQ(station.chain.index_debut_aleatoire, 2);
}

TEST_F(DeckStartTest, NamesTheTrackOnTheSmallPlayerAndTheListWindow) {
    open_tracks({100, 100, 100});
    start_list();
    machine.run_for(seconds(94));
    EXPECT_EQ(station.small_player.caption.get(), "titre 2");
    EXPECT_EQ(station.list_window.track_name.caption.get(), "titre 2");
    EXPECT_EQ(station.list_window.remaining.caption.get(), "00:01:40");
}

TEST_F(DeckStartTest, WithoutAFadeCutsTheTrackBefore) {
    open_on_all({100, 100, 100});
    station.main_window.mix_titles.click();
    controls(1).play.click();
    station.main_window.Désactive_audio.click();
    machine.run_for(seconds(50));
    controls(2).play.enabled = true;
    controls(2).play.click();
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{track(2)});
}

TEST_F(DeckStartTest, KeysOfTheOtherDecksWorkBehindAMenuThatWasOpenBefore) {
    open_tracks({100, 100});
    start_list();
    auto& window = station.main_window;
    window.lire_play.open();
    EXPECT_FALSE(window.special_mix_entries()[0]->enabled);
    machine.run_for(seconds(120)); // the second deck plays
    EXPECT_TRUE(window.special_mix_entries()[0]->enabled);
    EXPECT_TRUE(window.play_entries()[0]->enabled);
    EXPECT_FALSE(window.special_mix_entries()[1]->enabled);
    EXPECT_FALSE(window.play_entries()[1]->enabled);
}

} // namespace sonarelle
