#include "playout/zapping.h"

#include <algorithm>

#include "platform/failure.h"
#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using Kind = OnAirEvent::Kind;

class ZappingTest : public ChainFixture {
protected:
    void start_and_run(int seconds_played) {
        open_tracks({200, 200, 200});
        start_list();
        machine.run_for(seconds(seconds_played));
    }
};

} // namespace

TEST_F(ZappingTest, IsRefusedAtThirtySeconds) {
    start_and_run(30);
    machine.dialogs.expect_box("secondes minimun", Answer::ok);
    station.list_window.zap.click();
    EXPECT_EQ(machine.dialogs.last().icon, Icon::warning);
    EXPECT_EQ(times_of(Kind::started).size(), 1U);
}

TEST_F(ZappingTest, IsAcceptedAtThirtyOneSeconds) {
    start_and_run(31);
    station.list_window.zap.click();
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {31, 2}}));
}

TEST_F(ZappingTest, NamesTheLongestJingleInItsRefusalWhateverTheLimitIs) {
    start_and_run(31);
    station.settings.valeur_max_jingles = 45;
    station.main_window.elapsed.caption = "30";
    machine.dialogs.expect_box("45 secondes minimun sont demandées", Answer::ok);
    station.list_window.zap.click();
    EXPECT_EQ(times_of(Kind::started).size(), 1U);
}

TEST_F(ZappingTest, StoresTheEndPointInTheRecord) {
    start_and_run(50);
    station.list_window.zap.click();
    EXPECT_EQ(record_in(machine.disk.bytes("C:\\Sonarelle\\essai.dfm"), 1).trimmed_fin_lecture(), "50");
    EXPECT_EQ(rows().sub_item(1, 2), "50.00");
}

TEST_F(ZappingTest, StoresTheEndPointInTheLastRecordToo) {
    open_tracks({200, 200, 200});
    rows().select(3);
    start_list();
    machine.run_for(seconds(50));
    station.list_window.zap.click();
    EXPECT_EQ(record_in(machine.disk.bytes("C:\\Sonarelle\\essai.dfm"), 3).trimmed_fin_lecture(), "50");
}

TEST_F(ZappingTest, LeavesARowThatNoLongerShowsItsRecord) {
    start_and_run(50);
    const RowTable::Row other{"C:\\autre.mp3", "0.00", "90.00", "Rock", "100", ""};
    rows().replace(1, other);
    station.list_window.zap.click();
    EXPECT_EQ(rows().row(1), other);
}

TEST_F(ZappingTest, FadesTheOldDeckAndReleasesIt) {
    start_and_run(50);
    station.list_window.zap.click();
    machine.run_for(seconds(15));
    EXPECT_EQ(times_of(Kind::fade_began).size(), 1U);
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{track(2)});
}

TEST_F(ZappingTest, ByTheButtonIsNotBoundToTheSecondsInAReadingModeOfTheList) {
    start_and_run(5);
    station.main_window.deck(1).zap.click();
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {5, 2}}));
}

TEST_F(ZappingTest, OntoAFileThatCantBePlayedSaysSoByName) {
    start_and_run(50);
    machine.media.set_unplayable(track(2));
    machine.dialogs.expect_box("lecture impossible", Answer::ok);
    station.list_window.zap.click();
    EXPECT_NE(machine.dialogs.last().text.find(track(2)), std::string::npos);
}

TEST_F(ZappingTest, OntoAFileThatCantBePlayedLeavesTheTrackOnTheAir) {
    start_and_run(50);
    machine.media.set_unplayable(track(2));
    machine.dialogs.expect_box("lecture impossible", Answer::ok);
    station.list_window.zap.click();
    machine.run_for(seconds(10));
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{track(1)});
}

TEST_F(ZappingTest, OntoAFileThatCantBePlayedIsFollowedAtTheMixPointByTheRowBehind) {
    start_and_run(50);
    machine.media.set_unplayable(track(2));
    machine.dialogs.expect_box("lecture impossible", Answer::ok);
    station.list_window.zap.click();
    machine.run_for(seconds(150));
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{track(3)});
}

TEST_F(ZappingTest, OntoAFileThatCantBePlayedLeavesTheRecordsEnd) {
    start_and_run(50);
    const std::string before = machine.disk.bytes("C:\\Sonarelle\\essai.dfm");
    machine.media.set_unplayable(track(2));
    machine.dialogs.expect_box("lecture impossible", Answer::ok);
    station.list_window.zap.click();
    EXPECT_EQ(machine.disk.bytes("C:\\Sonarelle\\essai.dfm"), before);
}

TEST_F(ZappingTest, ThatIsRefusedLeavesTheNextDecksSpecialMix) {
    start_and_run(20);
    machine.add_track("C:\\jingle.mp3", 60);
    station.chain.chemin_lecture2 = "C:\\jingle.mp3";
    controls(2).special_mix.click();
    machine.run_for(seconds(2));
    machine.dialogs.expect_box("secondes minimun", Answer::ok);
    station.list_window.zap.click();
    EXPECT_EQ(machine.media.on_air().size(), 2U);
    EXPECT_EQ(station.chain.lecteur_mix_special, 2);
}

TEST_F(ZappingTest, OntoAFileThatCantBePlayedLeavesTheNextDecksSpecialMix) {
    start_and_run(40);
    machine.add_track("C:\\jingle.mp3", 60);
    station.chain.chemin_lecture2 = "C:\\jingle.mp3";
    controls(2).special_mix.click();
    machine.run_for(seconds(2));
    machine.media.set_unplayable(track(2));
    machine.dialogs.expect_box("lecture impossible", Answer::ok);
    station.list_window.zap.click();
    EXPECT_EQ(machine.media.on_air().size(), 2U);
}

TEST_F(ZappingTest, PassesOverARowOfLessThanASecond) {
    start_and_run(40);
    machine.media.set_length(track(2), 0.9);
    station.list_window.zap.click();
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 3}));
    EXPECT_EQ(rows().count(), 3);
}

TEST_F(ZappingTest, OpensTheFileThatItTakesOnceBeforeItsLoad) {
    start_and_run(40);
    machine.media.clear_log();
    station.list_window.zap.click();
    const auto opened = std::ranges::count_if(machine.media.log(), [](const MediaCommand& command) {
        return command.action == MediaAction::rendered && command.path == track(2);
    });
    EXPECT_EQ(opened, 3); // to look at it, to load it, to start it
}

TEST_F(ZappingTest, JournalsARowOfLessThanASecondOnceATrack) {
    station.main_window.Active_journal.click();
    start_and_run(40);
    machine.media.set_length(track(2), 0.9);
    machine.disk.refuse("C:\\Sonarelle\\essai.dfm", FailureNumber::device_fault);
    for (int zap = 0; zap < 2; ++zap) {
        machine.dialogs.expect_box("essai.dfm", Answer::ok);
        station.list_window.zap.click();
    }
    const std::string line = " fichier : " + track(2) + " Plus court qu'une seconde\r\n";
    const std::string text = journal_text();
    ASSERT_NE(text.find(line), std::string::npos);
    EXPECT_EQ(text.find(line, text.find(line) + 1), std::string::npos);
}

TEST_F(ZappingTest, OverAListThatCantBeReadLeavesTheChainItsNextRow) {
    start_and_run(40);
    machine.disk.refuse("C:\\Sonarelle\\essai.dfm", FailureNumber::device_fault);
    machine.dialogs.expect_box("essai.dfm", Answer::ok);
    station.list_window.zap.click();
    machine.disk.heal("C:\\Sonarelle\\essai.dfm");
    machine.run_for(seconds(160));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {194, 2}}));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2}));
}

TEST_F(ZappingTest, OverAListThatCantBeReadLeavesTheNextDecksSpecialMix) {
    start_and_run(40);
    machine.add_track("C:\\jingle.mp3", 60);
    station.chain.chemin_lecture2 = "C:\\jingle.mp3";
    controls(2).special_mix.click();
    machine.disk.refuse("C:\\Sonarelle\\essai.dfm", FailureNumber::device_fault);
    machine.dialogs.expect_box("essai.dfm", Answer::ok);
    station.list_window.zap.click();
    EXPECT_EQ(machine.media.on_air(), (std::vector<std::string>{track(1), "C:\\jingle.mp3"}));
    EXPECT_EQ(station.chain.lecteur_mix_special, 2);
}

TEST_F(ZappingTest, OverAListThatCantBeReadLeavesTheLoadedTrack) {
    start_and_run(190);
    ASSERT_EQ(station.chain.chemin_lecture2, track(2));
    machine.disk.refuse("C:\\Sonarelle\\essai.dfm", FailureNumber::device_fault);
    machine.dialogs.expect_box("essai.dfm", Answer::ok);
    station.list_window.zap.click();
    machine.disk.heal("C:\\Sonarelle\\essai.dfm");
    machine.run_for(seconds(10));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2}));
    EXPECT_EQ(times_of(Kind::loaded).size(), 2U);
}

TEST_F(ZappingTest, ThroughAListWhoseFolderIsGoneLeavesTheChainItsNextRow) {
    start_and_run(40);
    machine.disk.refuse("C:\\Musique", FailureNumber::path_not_found);
    station.list_window.zap.click();
    machine.disk.heal("C:\\Musique");
    machine.run_for(seconds(160));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2}));
}

TEST_F(ZappingTest, ThroughAListWhoseFolderIsGoneLeavesTheLoadedTrack) {
    start_and_run(190);
    ASSERT_EQ(station.chain.chemin_lecture2, track(2));
    machine.disk.refuse("C:\\Musique", FailureNumber::path_not_found);
    station.list_window.zap.click();
    machine.disk.heal("C:\\Musique");
    machine.run_for(seconds(10));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2}));
    EXPECT_EQ(times_of(Kind::loaded).size(), 2U);
}

TEST_F(ZappingTest, SwitchesTheLoadStepsTickOff) {
    start_and_run(50);
    station.main_window.load_ahead.set_value(1);
    station.list_window.zap.click();
    EXPECT_EQ(station.main_window.load_ahead.value(), 0);
}

TEST_F(ZappingTest, ByTheButtonOfADeckThatIsNotTheMainOneDoesNothing) {
    start_and_run(50);
    machine.add_track("C:\\annonce.mp3", 60);
    open_on(3, "C:\\annonce.mp3");
    controls(3).zap.enabled = true;
    controls(3).zap.click();
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{track(1)});
    EXPECT_EQ(times_of(Kind::started).size(), 1U);
}

TEST_F(ZappingTest, ByTheButtonBeforeALostDriveLeavesTheLoadStepOn) {
    open_tracks({200, 200});
    rows().select(1);
    start_list();
    machine.run_for(seconds(5));
    station.main_window.load_ahead.set_value(1);
    machine.disk.Kill(track(2));
    machine.disk.refuse("C:\\Musique", FailureNumber::device_unavailable);
    machine.dialogs.default_answers();
    controls(1).zap.click();
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{track(1)});
    EXPECT_EQ(station.main_window.load_ahead.value(), 1);
}

TEST_F(ZappingTest, OfAFileOpenedBeforeAnyRowHasPlayedGoesOver) {
    open_tracks({200, 200});
    station.list_window.defined_end_mode.click();
    station.main_window.mix_list.click();
    machine.add_track("C:\\main.mp3", 100);
    open_on(1, "C:\\main.mp3");
    controls(1).play.click();
    machine.run_for(seconds(40));
    station.main_window.key_press(U'z');
    EXPECT_EQ(machine.media.on_air().back(), track(1));
}

TEST_F(ZappingTest, OverDecksOntoOneThatHasMovedLeavesTheTrackOnTheAir) {
    open_on_all({100, 100, 100});
    station.main_window.mix_titles.click();
    controls(1).play.click();
    machine.run_for(seconds(5));
    controls(2).progress.value = 7;
    station.main_window.key_press(U'z');
    EXPECT_EQ(times_of(Kind::started).size(), 1U);
    EXPECT_NE(controls(1).title.caption.get(), " - En attente");
}

TEST_F(ZappingTest, OverDecksOntoASpecialMixStartsItsFile) {
    open_on_all({100, 60, 100});
    station.main_window.mix_titles.click();
    controls(1).play.click();
    controls(2).special_mix.click();
    machine.run_for(seconds(5));
    station.main_window.key_press(U'z');
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {5, 2}}));
    EXPECT_EQ(station.chain.lecteur_mix_special, 0);
}

TEST_F(ZappingTest, OverDecksOntoAFileThatCantBePlayedLeavesTheTrackOnTheAir) {
    open_on_all({100, 100, 100});
    station.main_window.mix_titles.click();
    controls(1).play.click();
    machine.run_for(seconds(5));
    machine.media.set_unplayable(track(2));
    machine.dialogs.expect_box("lecture impossible", Answer::ok);
    station.main_window.key_press(U'z');
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{track(1)});
    EXPECT_NE(controls(1).title.caption.get(), " - En attente");
}

TEST_F(ZappingTest, IsAcceptedAtThirtyOneSecondsWhateverTheLongestJingleIs) {
    start_and_run(31);
    station.settings.valeur_max_jingles = 45;
    station.list_window.zap.click();
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {31, 2}}));
}

TEST_F(ZappingTest, WithoutAMainDeckSaysSo) {
    machine.dialogs.expect_box("Aucune lecture en cours", Answer::ok);
    station.list_window.zap.click();
    EXPECT_EQ(station.list_window.zap_status.caption.get(), "Zapping autorisé");
}

TEST_F(ZappingTest, OntoAFileThatCantBePlayedLeavesTheLoadStepOn) {
    open_tracks({200, 200, 200, 200});
    machine.media.set_unplayable(track(2));
    machine.media.set_unplayable(track(3));
    start_list();
    machine.run_for(seconds(50));
    machine.dialogs.expect_box("lecture impossible", Answer::ok);
    station.list_window.zap.click();
    machine.run_for(seconds(150));
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{track(4)});
}

TEST_F(ZappingTest, FromAFileThatBelongsToNoRowLeavesTheEndsOfTheList) {
    start_and_run(10);
    machine.add_track("C:\\main.mp3", 100);
    open_on(2, "C:\\main.mp3");
    controls(2).play.click();
    machine.run_for(seconds(40));
    const std::string before = machine.disk.bytes("C:\\Sonarelle\\essai.dfm");
    station.list_window.zap.click();
    EXPECT_EQ(machine.media.on_air().back(), track(2));
    EXPECT_EQ(machine.disk.bytes("C:\\Sonarelle\\essai.dfm"), before);
}

TEST_F(ZappingTest, ShowsTheRowInTheListAndJournalsIt) {
    station.main_window.Active_journal.click();
    start_and_run(50);
    station.list_window.zap.click();
    EXPECT_EQ(rows().selected(), 2);
    EXPECT_EQ(station.chain.element_en_cours, 2);
    EXPECT_NE(journal_text().find(" ZAPPING sur ----> : " + track(2)), std::string::npos);
}

TEST_F(ZappingTest, ThatIsRefusedReadiesTheNextZapAndNoStartOfTheRunningList) {
    start_and_run(20);
    machine.dialogs.expect_box("secondes minimun", Answer::ok);
    station.list_window.zap.click();
    EXPECT_FALSE(station.list_window.play_list.enabled);
    EXPECT_TRUE(station.list_window.zap.enabled);
}

TEST_F(ZappingTest, TellsTheLoadOnceBehindTheLoadStep) {
    start_and_run(190);
    station.list_window.zap.click();
    EXPECT_EQ(times_of(Kind::loaded).size(), 2U);
}

TEST_F(ZappingTest, OverDecksOntoAFileThatIsGoneSaysSo) {
    open_on_all({100, 100, 100});
    station.main_window.mix_titles.click();
    controls(1).play.click();
    machine.run_for(seconds(5));
    machine.disk.Kill(track(2));
    machine.dialogs.expect_box("Fichier non trouvé /abandon", Answer::ok);
    station.main_window.key_press(U'z');
    EXPECT_EQ(machine.dialogs.last().icon, Icon::stop);
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{track(1)});
}

TEST_F(ZappingTest, ByTheButtonInManualModeDoesNothing) {
    open_on_all({100, 100, 100});
    station.main_window.a_mode_manuel.click();
    controls(1).play.click();
    controls(1).zap.click();
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{track(1)});
}

TEST_F(ZappingTest, ThatLeavesAShorterRecordThanItsTrackIsToldToTheListsRows) {
    start_and_run(50);
    station.list_window.zap.click();
    machine.run_for(seconds(10));
    EXPECT_EQ(station.list.ligne_en_lecture, 2);
    EXPECT_EQ(rows().sub_item(2, 2), "200.00");
}

} // namespace sonarelle
