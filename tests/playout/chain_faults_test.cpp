// What goes wrong on the air, and what the chain makes of it.
#include "playlist/list_rows.h"
#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using Kind = OnAirEvent::Kind;
using Paths = std::vector<std::string>;

class ChainFaultsTest : public ChainFixture {
protected:
    [[nodiscard]] std::string warning() const { return station.warning_window.lines.caption; }
    void play_for(int seconds_played) { machine.run_for(seconds(seconds_played)); }
    /// Three rows, the second of which lies in a folder that isn't there; the first one plays 100 s.
    void open_list_behind_a_lost_folder() {
        machine.add_track(track(1), 100);
        machine.add_track(track(3), 100);
        open_list("C:\\Sonarelle\\essai.dfm",
                  {record_of(track(1), "100", 100, 0.0), record_of("C:\\Parti\\b.mp3", "100", 100, 0.0),
                   record_of(track(3), "100", 100, 0.0)});
        rows().select(1);
        start_list();
    }
};

} // namespace

TEST_F(ChainFaultsTest, ListWhoseNextDriveIsGoneIsStoppedAtTheLoad) {
    station.main_window.Active_journal.click();
    open_tracks({100, 100});
    machine.disk.put_file("E:\\a.mp3");
    rows().append({"E:\\a.mp3", "0.10", "100.00", "Rock", "100", ""});
    station.list_document.sauve_tout();
    rows().select(2);
    start_list();
    machine.disk.remove_drive("E");
    play_for(88);
    EXPECT_EQ(station.main_window.chain_status.caption.get(), "Play en attente");
    EXPECT_TRUE(station.main_window.mix_titles.value());
    EXPECT_EQ(station.main_window.elapsed.caption.get(), "0");
    EXPECT_EQ(rows().count(), 3);
    EXPECT_NE(journal_text().find(" Erreur au chargement de fichier...liste stopp\xE9"
                                  "e\r\n"),
              std::string::npos);
}

TEST_F(ChainFaultsTest, StopOfTheLoadLeavesNoTimerOfTheChainOn) {
    open_list_behind_a_lost_folder();
    play_for(88);
    for (const Timer* timer : station.main_window.chain_timers())
        EXPECT_FALSE(timer->enabled()) << timer->name();
}

TEST_F(ChainFaultsTest, StoppedListIsStillStoppedAtTheMixPoint) {
    open_list_behind_a_lost_folder();
    play_for(99);
    EXPECT_EQ(rows_started(), std::vector<int>{1});
    EXPECT_EQ(rows().count(), 3);
    EXPECT_EQ(machine.media.on_air(), Paths{track(1)});
}

TEST_F(ChainFaultsTest, FileThatIsOpenedByHandBehindTheStopIsNotOverwritten) {
    open_list_behind_a_lost_folder();
    play_for(88);
    machine.add_track("C:\\a.mp3", 30);
    open_on(2, "C:\\a.mp3");
    play_for(11);
    EXPECT_EQ(station.chain.chemin_lecture2, "C:\\a.mp3");
}

TEST_F(ChainFaultsTest, RecordsVolumeIsAppliedToWhatIsStartedByHandBehindTheStop) {
    open_list_behind_a_lost_folder();
    play_for(88);
    rows().set_sub_item(3, list_column::volume, "50");
    station.list_document.sauve_tout();
    rows().select(3);
    station.list_window.char2.click();
    station.main_window.lire_2.click();
    EXPECT_EQ(station.deck_ring.deck(2).graph().get_Volume(), Millibel{-2000});
}

TEST_F(ChainFaultsTest, MixingTheTitlesBehindTheStopChainsTheDecks) {
    open_list_behind_a_lost_folder();
    play_for(88);
    station.main_window.mix_titles.click();
    machine.add_track("C:\\a.mp3", 30);
    open_on(2, "C:\\a.mp3");
    play_for(10);
    EXPECT_EQ(machine.media.on_air().back(), "C:\\a.mp3");
}

TEST_F(ChainFaultsTest, ListWhoseNextFolderIsGoneIsStoppedAtTheLoad) {
    open_tracks({100});
    rows().append({"C:\\Parti\\a.mp3", "0.10", "100.00", "Rock", "100", ""});
    station.list_document.sauve_tout();
    rows().select(1);
    start_list();
    play_for(99);
    EXPECT_EQ(times_of(Kind::stopped), (Times{{87, 0}}));
    EXPECT_EQ(rows().count(), 2);
}

TEST_F(ChainFaultsTest, WarningNamesTheKeyThatHelps) {
    open_tracks({3, 100});
    machine.media.set_unplayable(track(2));
    start_list();
    play_for(3);
    EXPECT_NE(warning().find("\nSI LISTE EN COURS : ARRETEE\nTapez F2 dans le cas de lecture de liste\n"
                             "Revoir la sélection"),
              std::string::npos);
    EXPECT_EQ(station.warning_window.caption.get(), "ATTENTION ERREUR");
}

TEST_F(ChainFaultsTest, ItemTooShortForALoadStepBeforeAnUnplayableFileStopsTheList) {
    open_tracks({3, 100, 100});
    machine.media.set_unplayable(track(2));
    start_list();
    play_for(3);
    EXPECT_EQ(warning().substr(0, 24), "ATTENTION ERREUR ! T4\nFI");
    EXPECT_FALSE(station.main_window.list_chain_timer.enabled());
    EXPECT_TRUE(station.main_window.mix_titles.value());
}

TEST_F(ChainFaultsTest, ItemTooShortForALoadStepBeforeAMissingFileGoesOn) {
    open_tracks({3, 100, 100});
    machine.disk.Kill(track(2));
    start_list();
    play_for(3);
    EXPECT_EQ(machine.media.on_air().back(), track(3));
    EXPECT_EQ(rows().count(), 2);
}

TEST_F(ChainFaultsTest, FaultOfTheFadeLeavesTheListRunning) {
    open_tracks({100, 100, 100});
    start_list();
    play_for(95);
    station.chain.position_zap = 32767;
    play_for(1);
    EXPECT_FALSE(station.main_window.overlap_timer.enabled());
    EXPECT_TRUE(station.main_window.list_chain_timer.enabled());
    EXPECT_EQ(warning().substr(warning().find('\n')), "\n6");
    play_for(100);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2, 3}));
}

TEST_F(ChainFaultsTest, ZapButtonPassesARowOverWhoseFolderIsGone) {
    open_list_behind_a_lost_folder();
    play_for(40);
    controls(1).zap.click();
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 3}));
    EXPECT_EQ(rows().count(), 3);
}

TEST_F(ChainFaultsTest, ZapKeyPassesARowOverWhoseFolderIsGone) {
    open_list_behind_a_lost_folder();
    play_for(40);
    station.main_window.key_press(U'z');
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 3}));
    EXPECT_EQ(rows().count(), 3);
}

TEST_F(ChainFaultsTest, ItemTooShortForALoadStepPassesARowOverWhoseDriveIsGone) {
    open_tracks({3, 100, 100});
    machine.disk.put_file("E:\\a.mp3");
    rows().set_text(2, "E:\\a.mp3");
    station.list_document.sauve_tout();
    rows().select(1);
    start_list();
    machine.disk.remove_drive("E");
    play_for(5);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 3}));
    EXPECT_EQ(rows().count(), 3);
}

TEST_F(ChainFaultsTest, FolderThatComesBackFindsAllItsRowsInTheList) {
    station.main_window.Active_journal.click();
    open_tracks({3, 3, 3, 100});
    start_list();
    machine.disk.refuse("C:\\Musique", FailureNumber::path_not_found);
    play_for(8);
    EXPECT_EQ(rows().count(), 4);
    machine.disk.heal("C:\\Musique");
    play_for(2);
    EXPECT_EQ(machine.media.on_air().size(), 1U);
}

TEST_F(ChainFaultsTest, RowWhoseFolderIsGoneIsJournalledOnceATrack) {
    station.main_window.Active_journal.click();
    open_tracks({3, 100});
    start_list();
    machine.disk.refuse("C:\\Musique", FailureNumber::path_not_found);
    play_for(8);
    const std::string line = " fichier : " + track(2) + " Dossier absent, gard\xE9 dans la liste\r\n";
    const std::string text = journal_text();
    ASSERT_NE(text.find(line), std::string::npos);
    EXPECT_EQ(text.find(line, text.find(line) + 1), std::string::npos);
}

TEST_F(ChainFaultsTest, LoadStepThatFailedIsTriedAgainInTheNextTrack) {
    open_tracks({100, 100, 100, 100});
    start_list();
    play_for(80);
    machine.disk.refuse("C:\\Musique", FailureNumber::permission_refused);
    play_for(10);
    machine.disk.heal("C:\\Musique");
    play_for(10);
    ASSERT_EQ(times_of(Kind::started).back(), (std::pair<double, int>{94, 2}));
    play_for(82);
    EXPECT_EQ(times_of(Kind::loaded).back(), (std::pair<double, int>{181, 3}));
}

TEST_F(ChainFaultsTest, RemovedRowKeepsTheMarkOnTheRowThatPlays) {
    open_tracks({100, 100, 100});
    machine.disk.Kill(track(1));
    rows().select(3);
    start_list();
    play_for(90);
    EXPECT_EQ(rows().count(), 2);
    EXPECT_EQ(station.list.ligne_en_lecture, 2);
}

TEST_F(ChainFaultsTest, NetworkPathIsNotLookedFor) {
    station.main_window.Active_journal.click();
    open_tracks({100});
    machine.disk.add_drive("\\\\serveur\\son");
    machine.add_track("\\\\serveur\\son\\a.mp3", 100);
    rows().append({"\\\\serveur\\son\\a.mp3", "0.10", "100.00", "Rock", "100", ""});
    station.list_document.sauve_tout();
    rows().select(1);
    start_list();
    play_for(95);
    EXPECT_EQ(machine.media.on_air().back(), "\\\\serveur\\son\\a.mp3");
    EXPECT_NE(journal_text().find(" Pas de v\xE9rification d'existence de fichier (fichier sur le r\xE9seau)\r\n"),
              std::string::npos);
}

TEST_F(ChainFaultsTest, RowWhoseShareDoesNotAnswerIsPassedOverAndStaysInTheList) {
    open_tracks({100, 100});
    rows().append({"\\\\serveur\\son\\a.mp3", "0.10", "100.00", "Rock", "100", ""});
    station.list_document.sauve_tout();
    rows().select(2);
    start_list();
    play_for(95);
    EXPECT_EQ(rows().count(), 3);
    EXPECT_EQ(machine.media.on_air().back(), track(1));
}

TEST_F(ChainFaultsTest, ShareThatDoesNotAnswerBehindAShortItemIsPassedOver) {
    open_tracks({3, 100, 100});
    rows().set_text(2, "\\\\serveur\\son\\a.mp3");
    station.list_document.sauve_tout();
    rows().select(1);
    start_list();
    play_for(5);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 3}));
    EXPECT_EQ(rows().count(), 3);
}

TEST_F(ChainFaultsTest, RowWhoseNetworkFileIsMissingOnItsShareIsRemoved) {
    open_tracks({100, 100});
    machine.disk.add_drive("\\\\serveur\\son");
    machine.disk.put_file("\\\\serveur\\son\\autre.mp3");
    rows().append({"\\\\serveur\\son\\a.mp3", "0.10", "100.00", "Rock", "100", ""});
    station.list_document.sauve_tout();
    rows().select(2);
    start_list();
    play_for(95);
    EXPECT_EQ(rows().count(), 2);
    EXPECT_EQ(machine.media.on_air().back(), track(1));
}

TEST_F(ChainFaultsTest, LastRowThatCannotBePlayedStopsTheListAtTheLoad) {
    open_tracks({100, 100});
    start_list();
    rows().remove(1);
    station.list_document.sauve_tout();
    machine.disk.Kill(track(2));
    play_for(100);
    EXPECT_EQ(rows().count(), 0);
    EXPECT_EQ(times_of(Kind::stopped), (Times{{87, 0}}));
}

TEST_F(ChainFaultsTest, WarningOfTheLastLoadIsHiddenAtTheNext) {
    open_tracks({40, 40, 40, 40});
    machine.disk.Kill(track(2));
    start_list();
    play_for(30);
    ASSERT_TRUE(station.warning_window.visible);
    play_for(34);
    EXPECT_FALSE(station.warning_window.visible);
}

TEST_F(ChainFaultsTest, RemovedRowIsNoLoadedRow) {
    open_tracks({100, 3});
    start_list();
    play_for(50);
    machine.disk.Kill(track(2));
    play_for(40);
    EXPECT_EQ(rows().count(), 1);
    EXPECT_FALSE(station.chain.chargement_fait.is_true());
}

TEST_F(ChainFaultsTest, RemovedRowBehindTheOneThatPlaysLeavesTheMark) {
    open_tracks({100, 100, 100});
    machine.disk.Kill(track(2));
    start_list();
    play_for(90);
    ASSERT_EQ(rows().count(), 2);
    EXPECT_EQ(station.list.ligne_en_lecture, 1);
}

TEST_F(ChainFaultsTest, RowThatPlaysLosesItsFileAndKeepsItsMark) {
    open_tracks({100, 100});
    start_list();
    station.row_cursor.remove_row();
    EXPECT_EQ(station.list.ligne_en_lecture, 1);
}

TEST_F(ChainFaultsTest, PausedInItsLoadSecondTheRowIsLoadedOnce) {
    open_tracks({100, 100});
    start_list();
    play_for(87);
    ASSERT_EQ(times_of(Kind::loaded).size(), 2U);
    controls(1).pause.click();
    machine.run_for(milliseconds(14900));
    controls(1).pause.click();
    play_for(5);
    EXPECT_EQ(times_of(Kind::loaded).size(), 2U);
}

TEST_F(ChainFaultsTest, StartOfAListWhoseFileIsMissingSaysSo) {
    open_tracks({100, 100});
    machine.disk.Kill(track(1));
    start_list();
    EXPECT_EQ(station.list_window.list_status.caption.get(), "Non trouvé");
    EXPECT_EQ(warning(), "Recherche de fichier\nDemarrage liste\n" + track(1) +
                             "\n / format / lecture impossible  \nabandon lecture liste");
}

TEST_F(ChainFaultsTest, ListThatStartsAgainInTheFullLengthIsChainedAgain) {
    open_tracks({3, 100, 100, 100});
    machine.media.set_unplayable(track(2));
    station.list_window.full_length_mode.click();
    station.list_window.play_list.click();
    play_for(5);
    ASSERT_FALSE(station.main_window.list_chain_timer.enabled());
    rows().select(3);
    station.list_window.play_list.click();
    play_for(95);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 3, 4}));
}

TEST_F(ChainFaultsTest, ListThatTheMenuStartsAgainInTheFullLengthIsChainedAgain) {
    open_tracks({3, 100, 100, 100});
    machine.media.set_unplayable(track(2));
    station.list_window.full_length_mode.click();
    station.list_window.play_list.click();
    play_for(5);
    ASSERT_FALSE(station.main_window.list_chain_timer.enabled());
    station.list.chemin_fichier = track(3);
    station.list.index_en_cours = 3;
    station.deck_loading.load_from_list(station.deck_ring.deck(1), {.dest_chemin = track(3)});
    station.list_window.lect_liste.click();
    play_for(95);
    EXPECT_EQ(machine.media.on_air().back(), track(4));
}

} // namespace sonarelle
