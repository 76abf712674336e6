#include "playout/auto_chain.h"

#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using Kind = OnAirEvent::Kind;

class AutoChainTest : public ChainFixture {};

} // namespace

TEST_F(AutoChainTest, LoadsThirteenSecondsAndStartsSixSecondsBeforeTheEnd) {
    open_tracks({200, 200, 200});
    start_list();
    machine.run_for(seconds(400));
    EXPECT_EQ(times_of(Kind::loaded), (Times{{0, 1}, {187, 2}, {381, 3}}));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {194, 2}, {388, 3}}));
}

TEST_F(AutoChainTest, CountsTheSecondsOfTheFileWhenATrackBeginsBehindItsStart) {
    open_tracks({200, 200, 200}, 0.10);
    start_list();
    machine.run_for(seconds(400));
    EXPECT_EQ(times_of(Kind::loaded), (Times{{0, 1}, {187, 2}, {381, 3}}));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {194, 2}, {388, 3}}));
}

TEST_F(AutoChainTest, GoesRoundTheEndOfTheList) {
    open_tracks({100, 100, 100});
    start_list();
    machine.run_for(seconds(390));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2, 3, 1, 2}));
}

TEST_F(AutoChainTest, LowersTheOutgoingDeckAndCutsItAtTheLimit) {
    open_tracks({200, 200});
    start_list();
    machine.run_for(seconds(210));
    EXPECT_EQ(times_of(Kind::fade_began), (Times{{194.035, 1}}));
    EXPECT_EQ(times_of(Kind::cut), (Times{{204.010, 1}}));
}

TEST_F(AutoChainTest, FollowsAShortItemAtOnceWithoutAFade) {
    open_tracks({20, 100, 100});
    start_list();
    machine.run_for(seconds(30));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {19, 2}}));
    EXPECT_TRUE(times_of(Kind::fade_began).empty());
}

TEST_F(AutoChainTest, SkipsTheSameFileTwiceInARow) {
    machine.add_track("C:\\a.mp3", 100);
    machine.add_track("C:\\b.mp3", 100);
    open_list("C:\\Sonarelle\\essai.dfm",
              {record_of("C:\\a.mp3", "100"), record_of("C:\\a.mp3", "100"), record_of("C:\\b.mp3", "100")});
    rows().select(1);
    start_list();
    machine.run_for(seconds(100));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 3}));
}

TEST_F(AutoChainTest, GoesOnBehindATrackThatThePlayerBeforeTheMainOneCutShort) {
    open_tracks({100, 100, 100});
    machine.add_track("C:\\urgent.mp3", 60);
    start_list();
    machine.run_for(seconds(20));
    open_on(3, "C:\\urgent.mp3");
    controls(3).play.click();
    machine.run_for(seconds(60));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {20, 3}, {74, 1}}));
}

TEST_F(AutoChainTest, GoesOnWhenAFilePlayedByHandIsGone) {
    open_tracks({100, 100, 100});
    machine.add_track("C:\\urgent.mp3", 60);
    start_list();
    open_on(2, "C:\\urgent.mp3");
    machine.disk.Kill("C:\\urgent.mp3");
    controls(2).play.click();
    machine.run_for(seconds(95));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {94, 2}}));
}

TEST_F(AutoChainTest, RemovesARowWhoseFileIsMissing) {
    open_tracks({100, 100, 100});
    machine.disk.Kill(track(2));
    start_list();
    machine.run_for(seconds(100));
    EXPECT_EQ(rows().count(), 2);
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {94, 2}}));
    EXPECT_EQ(station.warning_window.lines.caption.get(),
              "Recherche de fichier valide \n" + track(2) +
                  "\nCe fichier est non trouvé ou non valide !\nIl a été supprimé de la liste.");
}

TEST_F(AutoChainTest, NamesAllMissingFilesOfALoadInOneWarning) {
    open_tracks({100, 100, 100, 100});
    machine.disk.Kill(track(2));
    machine.disk.Kill(track(3));
    start_list();
    machine.run_for(seconds(90));
    EXPECT_EQ(station.warning_window.lines.caption.get(),
              "Recherche de fichier valide \n" + track(2) + "\n" + track(3) +
                  "\nCe fichier est non trouvé ou non valide !\nIl a été supprimé de la liste.");
}

TEST_F(AutoChainTest, WarningThatWasReadLeavesTheNextOneAlone) {
    open_tracks({100, 100, 100, 100});
    machine.disk.Kill(track(2));
    start_list();
    machine.run_for(seconds(90));
    station.warning_window.ok.click();
    machine.disk.Kill(track(4));
    machine.run_for(seconds(95));
    EXPECT_EQ(station.warning_window.lines.caption.get(),
              "Recherche de fichier valide \n" + track(4) +
                  "\nCe fichier est non trouvé ou non valide !\nIl a été supprimé de la liste.");
}

TEST_F(AutoChainTest, PassesARowOverWhoseFileCannotBePlayedAndKeepsIt) {
    station.main_window.Active_journal.click();
    open_tracks({100, 100, 100});
    machine.media.set_unplayable(track(2));
    start_list();
    machine.run_for(seconds(100));
    EXPECT_EQ(rows().count(), 3);
    EXPECT_EQ(machine.media.on_air().back(), track(3));
    EXPECT_NE(journal_text().find(" fichier : " + track(2) + " Lecture impossible, gard\xE9 dans la liste"),
              std::string::npos);
}

TEST_F(AutoChainTest, OfAListOfOneRowPlaysOutAndLeavesTheStationAlive) {
    open_tracks({100});
    start_list();
    machine.run_for(seconds(300));
    EXPECT_EQ(times_of(Kind::started).size(), 1U);
    EXPECT_EQ(machine.time.now(), seconds(300));
}

TEST_F(AutoChainTest, TakesARowThatWasAddedWhileTheWalkFoundNone) {
    open_tracks({100});
    start_list();
    machine.run_for(seconds(200));
    machine.add_track("C:\\neuf.mp3", 100);
    rows().append({"C:\\neuf.mp3", "0.10", "100.00", "Rock", "100", ""});
    station.list_document.sauve_tout();
    machine.run_for(seconds(1));
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{"C:\\neuf.mp3"});
}

TEST_F(AutoChainTest, StopsTheListWhenTheNextDriveIsGone) {
    open_tracks({100});
    rows().append({"E:\\a.mp3", "0.10", "100.00", "Rock", "100", ""});
    station.list_document.sauve_tout();
    rows().select(1);
    start_list();
    machine.run_for(seconds(88));
    EXPECT_EQ(times_of(Kind::stopped).size(), 1U);
    EXPECT_TRUE(station.main_window.mix_titles.value());
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{track(1)});
}

TEST_F(AutoChainTest, StopsTheListWhenTheEndPointIsNoNumber) {
    open_tracks({100, 100});
    start_list();
    machine.run_for(seconds(10));
    station.main_window.deck(1).counter.caption = "dix";
    machine.run_for(seconds(1));
    EXPECT_FALSE(station.main_window.list_chain_timer.enabled());
    EXPECT_EQ(station.warning_window.lines.caption.get().substr(0, 24), "ATTENTION ERREUR ! T4\nFI");
}

TEST_F(AutoChainTest, HoldsTheTickWhileTheChainIsSuspended) {
    open_tracks({100, 100});
    start_list();
    station.chain.chaine_suspendue = true;
    machine.run_for(seconds(99));
    EXPECT_EQ(times_of(Kind::started).size(), 1U);
}

TEST_F(AutoChainTest, CountsTheRemainingTimeDown) {
    open_tracks({100, 100});
    start_list();
    machine.run_for(seconds(30));
    EXPECT_EQ(station.list_window.remaining.caption.get(), "00:01:10");
}

TEST_F(AutoChainTest, CountsMinutesAndHoursDownAndStopsAtNothing) {
    const auto after = [this](std::string_view text) {
        station.list_window.remaining.caption = std::string{text};
        station.auto_chain.load_ahead.compteur();
        return station.list_window.remaining.caption.get();
    };
    EXPECT_EQ(after("00:01:00"), "00:00:59");
    EXPECT_EQ(after("01:00:00"), "00:59:59");
    EXPECT_EQ(after("10:10:10"), "10:10:09");
    EXPECT_EQ(after("00:00:00"), "00:00:00");
}

TEST_F(AutoChainTest, WritesTheRunIntoTheJournalWhileItIsOn) {
    station.main_window.Active_journal.click();
    open_tracks({100, 100});
    start_list();
    machine.run_for(seconds(95));
    const std::string journal = machine.disk.bytes("C:\\Sonarelle\\journal.doc");
    EXPECT_NE(journal.find(" D\xE9mmarage lecture liste a 06:00:00\r\n"), std::string::npos);
    EXPECT_NE(journal.find("06:01:34 Lecture de " + track(2) + " (2)\r\n"), std::string::npos);
}

TEST_F(AutoChainTest, SwitchingToTheFullLengthKeepsTheEndPointUntilTheNextLoad) {
    machine.add_track("C:\\a.mp3", 200);
    machine.add_track("C:\\b.mp3", 200);
    open_list("C:\\Sonarelle\\essai.dfm", {record_of("C:\\a.mp3", "100"), record_of("C:\\b.mp3", "100")});
    rows().select(1);
    start_list();
    machine.run_for(seconds(10));
    station.list_window.full_length_mode.click();
    EXPECT_EQ(station.main_window.deck(1).counter.caption.get(), "100");
    machine.run_for(seconds(85));
    EXPECT_EQ(station.main_window.deck(2).counter.caption.get(), "200");
}

TEST_F(AutoChainTest, GivesTheRecordsVolumeToTheGraph) {
    machine.add_track("C:\\a.mp3", 100);
    machine.add_track("C:\\b.mp3", 100);
    open_list("C:\\Sonarelle\\essai.dfm", {record_of("C:\\a.mp3", "100"), record_of("C:\\b.mp3", "100", 80)});
    rows().select(1);
    start_list();
    machine.run_for(seconds(95));
    EXPECT_EQ(station.deck_ring.deck(2).graph().get_Volume(), Millibel{-800});
}

TEST_F(AutoChainTest, ShowsTheRecordsVolumeOnTheSlider) {
    machine.add_track("C:\\a.mp3", 100);
    machine.add_track("C:\\b.mp3", 100);
    open_list("C:\\Sonarelle\\essai.dfm", {record_of("C:\\a.mp3", "100"), record_of("C:\\b.mp3", "100", 50)});
    rows().select(1);
    start_list();
    machine.run_for(seconds(95));
    EXPECT_EQ(controls(2).slider.value(), 10);
    EXPECT_EQ(controls(2).percent.caption.get(), "50%");
}

TEST_F(AutoChainTest, ShowsFullVolumeWhereTheOperatorLeftTheSliderLower) {
    open_tracks({100, 100});
    start_list();
    machine.run_for(seconds(90));
    controls(2).slider.set_value(6);
    machine.run_for(seconds(5));
    EXPECT_EQ(controls(2).slider.value(), 0);
    EXPECT_EQ(controls(2).percent.caption.get(), "100%");
}

TEST_F(AutoChainTest, FadeShowsItsPercent) {
    open_tracks({100, 100});
    start_list();
    machine.run_for(seconds(100));
    EXPECT_EQ(controls(1).percent.caption.get(), std::to_string(100 - 5 * controls(1).slider.value()) + "%");
    EXPECT_GT(controls(1).slider.value(), 0);
}

TEST_F(AutoChainTest, GoesOnWithTheFirstRowBehindTheLastThatItCanNumber) {
    open_tracks({100, 100});
    rows().select(2);
    start_list();
    while (rows().count() < 32768)
        rows().append({track(2), "0.10", "100.00", "", "100", ""});
    station.list.index_en_cours = 32767;
    machine.run_for(seconds(95));
    EXPECT_EQ(rows_started(), (std::vector<int>{2, 1}));
}

} // namespace sonarelle
