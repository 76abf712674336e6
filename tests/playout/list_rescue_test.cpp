// The list is taken up again when a fault has ended the air, and left alone when the operator has.
#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using Kind = OnAirEvent::Kind;
using Paths = std::vector<std::string>;

class ListRescueTest : public ChainFixture {
protected:
    void play_decks_of_which_the_next_is_gone() {
        open_tracks({40, 40});
        machine.add_track("C:\\a.mp3", 30);
        machine.add_track("C:\\b.mp3", 30);
        open_on(1, "C:\\a.mp3");
        open_on(2, "C:\\b.mp3");
        station.main_window.mix_titles.click();
        controls(1).play.click();
        machine.disk.Kill("C:\\b.mp3");
    }
    void play_for(int seconds_played) { machine.run_for(seconds(seconds_played)); }

    /// Row 2 of three lies in a folder that isn't there.
    void open_list_with_a_lost_folder() {
        machine.add_track(track(1), 40);
        machine.add_track(track(3), 40);
        open_list("C:\\Sonarelle\\essai.dfm", {record_of(track(1), "40", 100, 0.0), record_of(lost, "40", 100, 0.0),
                                               record_of(track(3), "40", 100, 0.0)});
        rows().select(1);
    }
    void stop_by_a_lost_folder() {
        open_list_with_a_lost_folder();
        start_list();
        play_for(28);
        ASSERT_EQ(times_of(Kind::stopped).size(), 1U);
    }
    [[nodiscard]] const OnAirEvent* rescue() const {
        for (const auto& [at, event] : events)
            if (event.kind == Kind::resumed)
                return &event;
        return nullptr;
    }

    const std::string lost = "C:\\Parti\\b.mp3";
};

} // namespace

TEST_F(ListRescueTest, TakesTheListUpFiveSecondsBehindTheTrackThatTheLoadStopLeft) {
    stop_by_a_lost_folder();
    play_for(30);
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {45, 1}}));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 3}));
}

TEST_F(ListRescueTest, TakesTheListUpThoughTheTrackThatWasLeftWasPaused) {
    stop_by_a_lost_folder();
    controls(1).pause.click();
    play_for(3);
    controls(1).pause.click();
    play_for(30);
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {48, 1}}));
}

TEST_F(ListRescueTest, TakesTheListUpBehindATrackThatWasStartedByHandToo) {
    open_list_with_a_lost_folder();
    station.list_window.full_length_mode.click();
    station.list_window.play_list.click();
    play_for(28);
    controls(1).zap.click();
    station.main_window.Désactive_audio.click();
    play_for(50);
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {28, 2}, {73, 1}}));
}

TEST_F(ListRescueTest, TakesTheListUpWhereTheChainSearchesInVain) {
    machine.add_track(track(1), 3);
    open_list("C:\\Sonarelle\\essai.dfm", {record_of(track(1), "3", 100, 0.0), record_of(lost, "40", 100, 0.0)});
    rows().select(1);
    start_list();
    play_for(12);
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {8, 1}}));
}

TEST_F(ListRescueTest, TakesTheListUpBehindAnOverlapThatTheStopFellInto) {
    machine.add_track(track(1), 300);
    machine.add_track(track(2), 8);
    open_list("C:\\Sonarelle\\essai.dfm", {record_of(track(1), "40", 100, 0.0), record_of(track(2), "8", 100, 0.0),
                                           record_of(lost, "40", 100, 0.0)});
    rows().select(1);
    start_list();
    play_for(60);
    ASSERT_EQ(times_of(Kind::stopped).size(), 1U);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2, 1}));
}

TEST_F(ListRescueTest, OpensNoBoxOverAnOverlapThatIsNoNumber) {
    stop_by_a_lost_folder();
    station.main_window.overlap.set_text("x");
    play_for(30);
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {45, 1}}));
    EXPECT_NE(station.warning_window.lines.caption.get().find("Une erreur est apparue !"), std::string::npos);
}

TEST_F(ListRescueTest, PassesOverARowThatBeginsWhereItsFileEnds) {
    for (const int number : {1, 3, 4})
        machine.add_track(track(number), 40);
    open_list("C:\\Sonarelle\\essai.dfm", {record_of(track(1), "40", 100, 0.0), record_of(lost, "40", 100, 0.0),
                                           record_of(track(3), "40", 100, 40.0), record_of(track(4), "40", 100, 0.0)});
    rows().select(1);
    start_list();
    play_for(60);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 4}));
}

TEST_F(ListRescueTest, GoesOnWithTheChain) {
    stop_by_a_lost_folder();
    play_for(60);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 3, 1}));
}

TEST_F(ListRescueTest, BeginsEachTimeWhereTheChainStood) {
    stop_by_a_lost_folder();
    play_for(120);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 3, 1, 3}));
}

TEST_F(ListRescueTest, BeginsWhereTheChainStoodThoughAnotherRowWasTriedInVain) {
    stop_by_a_lost_folder();
    machine.media.set_unplayable(track(3));
    rows().select(3);
    station.list_window.play_list.click();
    machine.add_track(lost, 40);
    play_for(30);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2}));
}

TEST_F(ListRescueTest, GoesOnWithTheChainWithoutFadesToo) {
    open_list_with_a_lost_folder();
    start_list();
    station.main_window.Désactive_audio.click();
    play_for(88);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 3, 1}));
}

TEST_F(ListRescueTest, KeepsTheRowOfTheLostFolder) {
    stop_by_a_lost_folder();
    play_for(60);
    EXPECT_EQ(rows().count(), 3);
}

TEST_F(ListRescueTest, TellsWhatItTookUpAndAfterHowLong) {
    stop_by_a_lost_folder();
    play_for(30);
    ASSERT_NE(rescue(), nullptr);
    EXPECT_EQ(rescue()->row, 3);
    EXPECT_EQ(rescue()->path, track(3));
    EXPECT_EQ(rescue()->span, seconds(5));
}

TEST_F(ListRescueTest, IsJournalled) {
    station.main_window.Active_journal.click();
    stop_by_a_lost_folder();
    play_for(30);
    EXPECT_NE(journal_text().find(" Reprise de la liste : " + track(3) + " (3)\r\n"), std::string::npos);
}

TEST_F(ListRescueTest, WaitsAsLongAsTheSettingSays) {
    station.settings.veille_antenne = 20;
    stop_by_a_lost_folder();
    play_for(60);
    EXPECT_EQ(times_of(Kind::started).back(), (std::pair<double, int>{60, 1}));
}

TEST_F(ListRescueTest, NeedsOnlyOneSecondWhereTheSettingSaysSo) {
    station.settings.veille_antenne = 1;
    stop_by_a_lost_folder();
    play_for(60);
    EXPECT_EQ(times_of(Kind::started)[1], (std::pair<double, int>{41, 1}));
}

TEST_F(ListRescueTest, OfNoSecondsNeverComes) {
    station.settings.veille_antenne = 0;
    stop_by_a_lost_folder();
    play_for(600);
    EXPECT_EQ(rows_started(), std::vector<int>{1});
}

TEST_F(ListRescueTest, TakesTheRowOfTheFolderThatIsBack) {
    stop_by_a_lost_folder();
    machine.add_track(lost, 40);
    play_for(30);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2}));
}

TEST_F(ListRescueTest, TriesAgainWhileNoFileOpens) {
    open_tracks({40, 40});
    start_list();
    play_for(20);
    machine.disk.refuse("C:\\Musique", FailureNumber::path_not_found);
    play_for(33);
    EXPECT_EQ(rescue(), nullptr);
    machine.disk.heal("C:\\Musique");
    play_for(5);
    ASSERT_NE(rescue(), nullptr);
    EXPECT_EQ(machine.media.on_air().size(), 1U);
    EXPECT_EQ(rows().count(), 2);
}

TEST_F(ListRescueTest, SaysOnceThatNoFileOpens) {
    station.main_window.Active_journal.click();
    open_tracks({40, 40});
    start_list();
    play_for(20);
    machine.disk.refuse("C:\\Musique", FailureNumber::path_not_found);
    play_for(100);
    const std::string text = journal_text();
    const auto first = text.find(" Reprise de la liste impossible");
    ASSERT_NE(first, std::string::npos);
    EXPECT_EQ(text.find(" Reprise de la liste impossible", first + 1), std::string::npos);
}

TEST_F(ListRescueTest, ComesBehindAnItemTooShortForALoadBeforeAnUnplayableFile) {
    open_tracks({3, 40, 40});
    machine.media.set_unplayable(track(2));
    start_list();
    play_for(10);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 3}));
}

TEST_F(ListRescueTest, ComesBehindAStartThatFailed) {
    open_tracks({40, 40});
    machine.media.set_unplayable(track(1));
    start_list();
    play_for(6);
    EXPECT_EQ(rows_started(), std::vector<int>{2});
}

TEST_F(ListRescueTest, ComesBehindAChainOverDecksThatAFaultStopped) {
    play_decks_of_which_the_next_is_gone();
    play_for(60);
    EXPECT_EQ(machine.media.on_air(), Paths{track(2)});
}

TEST_F(ListRescueTest, GoesOnWithTheListBehindAChainOverDecks) {
    play_decks_of_which_the_next_is_gone();
    play_for(100);
    EXPECT_EQ(machine.media.on_air(), Paths{track(1)});
}

TEST_F(ListRescueTest, ComesWhereNothingFollowsATrackWithoutAMixPoint) {
    open_tracks({40, 40});
    start_list();
    station.settings.valide_fichier_aleatoire1 = true; // which takes the net at a file's end off the first deck
    controls(1).counter.caption = "2";
    play_for(50);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2}));
}

TEST_F(ListRescueTest, LeavesAnEmptyListAlone) {
    stop_by_a_lost_folder();
    rows().clear();
    play_for(60);
    EXPECT_EQ(rescue(), nullptr);
}

TEST_F(ListRescueTest, LeavesWhatTheOperatorStoppedAlone) {
    open_tracks({40, 40});
    start_list();
    play_for(5);
    station.list_window.stop_decks.click();
    play_for(600);
    EXPECT_EQ(rescue(), nullptr);
}

TEST_F(ListRescueTest, LeavesADeckThatTheOperatorStoppedAlone) {
    open_tracks({40, 40});
    start_list();
    play_for(5);
    controls(1).stop.click();
    play_for(600);
    EXPECT_EQ(rescue(), nullptr);
}

TEST_F(ListRescueTest, LeavesAListAloneThatTheOperatorStopsBehindTheFault) {
    stop_by_a_lost_folder();
    station.list_window.stop_decks.click();
    play_for(600);
    EXPECT_EQ(rescue(), nullptr);
}

TEST_F(ListRescueTest, LeavesAPauseAlone) {
    stop_by_a_lost_folder();
    controls(1).pause.click();
    play_for(600);
    EXPECT_EQ(rescue(), nullptr);
}

TEST_F(ListRescueTest, LeavesTheManualModeAlone) {
    open_tracks({40, 40});
    machine.dialogs.default_answers();
    open_on_all({10, 10, 10});
    station.main_window.a_mode_manuel.click();
    controls(1).play.click();
    play_for(600);
    EXPECT_EQ(rescue(), nullptr);
}

TEST_F(ListRescueTest, LeavesQuietMusicAlone) {
    open_tracks({60, 40});
    machine.media.set_quiet(track(1));
    start_list();
    play_for(50);
    EXPECT_EQ(rescue(), nullptr);
}

TEST_F(ListRescueTest, WaitsForTheEndOfQuietMusicBehindTheFault) {
    open_list_with_a_lost_folder();
    machine.media.set_quiet(track(1));
    start_list();
    play_for(39);
    EXPECT_EQ(rescue(), nullptr);
}

TEST_F(ListRescueTest, LeavesAFadingSpecialMixToItself) {
    stop_by_a_lost_folder();
    machine.add_track("C:\\jingle.mp3", 60);
    open_on(2, "C:\\jingle.mp3");
    controls(2).special_mix.click();
    play_for(30);
    EXPECT_EQ(rescue(), nullptr);
}

} // namespace sonarelle
