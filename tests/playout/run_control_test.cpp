#include "playout/run_control.h"

#include <functional>

#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using Paths = std::vector<std::string>;

class RunControlTest : public ChainFixture {
protected:
    /// Looks for a file that stands on the second row of three.
    std::string look_for(std::string_view path) {
        station.list.index_en_cours = 2;
        station.list.chemin_fichier = path;
        return station.row_cursor.detecte_fichier_liste(std::string{path});
    }
    void play_a_file_by_hand() {
        machine.add_track("C:\\main.mp3", 100);
        open_on(2, "C:\\main.mp3");
        controls(2).play.click();
        machine.run_for(seconds(10));
    }
    [[nodiscard]] bool list_can_be_started() {
        EXPECT_EQ(station.list_window.play_list.enabled, station.list_window.lect_liste.enabled);
        return station.list_window.play_list.enabled;
    }
    [[nodiscard]] std::string warning() const { return station.warning_window.lines.caption; }
};

} // namespace

TEST_F(RunControlTest, FileThatIsThereIsKept) {
    open_tracks({100, 100, 100});
    EXPECT_EQ(look_for(track(2)), track(2));
    EXPECT_EQ(rows().count(), 3);
}

TEST_F(RunControlTest, FileIsFoundIgnoringCase) {
    open_tracks({100, 100, 100});
    EXPECT_EQ(look_for("c:\\MUSIQUE\\TITRE 2.MP3"), "c:\\MUSIQUE\\TITRE 2.MP3");
}

TEST_F(RunControlTest, NetworkFileIsAcceptedUnseen) {
    open_tracks({100, 100, 100});
    EXPECT_EQ(look_for("\\\\serveur\\absent.mp3"), "\\\\serveur\\absent.mp3");
}

TEST_F(RunControlTest, MissingFileLosesItsRowAndTheListIsSaved) {
    open_tracks({100, 100, 100});
    station.chain.lecteur_en_cours = 1;
    machine.disk.Kill(track(2));
    EXPECT_EQ(look_for(track(2)), "");
    EXPECT_EQ(rows().count(), 2);
    EXPECT_EQ(rows().text(2), track(3));
    EXPECT_EQ(station.list.index_en_cours, 1);
    EXPECT_EQ(record_in(default_list_bytes(), 2).trimmed_chemin(), track(3));
    EXPECT_EQ(warning(), "Recherche de fichier valide \n" + track(2) +
                             "\nCe fichier est non trouvé ou non valide !\nIl a été supprimé de la liste.");
    EXPECT_TRUE(station.warning_window.visible);
}

TEST_F(RunControlTest, PathOfPatternsThatNamesAnotherFileIsReported) {
    open_tracks({100, 100, 100});
    EXPECT_EQ(look_for("C:\\Musique\\titre ?.mp3"), "");
    EXPECT_EQ(rows().count(), 3);
    EXPECT_EQ(warning(), "Recherche de fichier\nC:\\Musique\\titre ?.mp3\nCe fichier est NON TROUVE !");
}

TEST_F(RunControlTest, FileInTheRootOfADriveIsFound) {
    open_tracks({100, 100, 100});
    machine.add_track("C:\\racine.mp3", 10);
    EXPECT_EQ(look_for("C:\\racine.mp3"), "C:\\racine.mp3");
}

TEST_F(RunControlTest, ListStartMakesTheFirstDeckTheMainOne) {
    open_tracks({100, 100, 100});
    start_list();
    EXPECT_EQ(machine.media.on_air(), Paths{track(1)});
    EXPECT_EQ(station.chain.lecteur_en_cours, 1);
    EXPECT_TRUE(controls(1).playing_mark.visible);
    EXPECT_TRUE(controls(1).zap.enabled);
    EXPECT_EQ(controls(1).title.caption.get(), "titre 1 - ");
    EXPECT_EQ(station.main_window.caption.get(), "Sonarelle : " + track(1));
    EXPECT_EQ(station.main_window.chain_status.caption.get(), "- - Sonarelle - -");
    EXPECT_EQ(station.list_window.remaining.caption.get(), "00:01:40");
}

TEST_F(RunControlTest, ListStartWithoutAFileDoesNothing) {
    open_tracks({100});
    station.run_control.lect_liste();
    EXPECT_EQ(station.chain.lecteur_en_cours, 0);
    EXPECT_FALSE(station.main_window.mix_list.value());
}

TEST_F(RunControlTest, ListStartBeginsAtTheRecordsStart) {
    machine.add_track(track(1), 100);
    open_list("C:\\Sonarelle\\essai.dfm", {record_of(track(1), "100", 100, 12.5)});
    rows().select(1);
    start_list();
    machine.run_for(seconds(1));
    EXPECT_EQ(station.deck_ring.deck(1).graph().get_CurrentPosition(), 13.5);
}

TEST_F(RunControlTest, ListStartCountsDownAndLoadsWhereTheRunBeforeWasStoppedBehindItsLoad) {
    open_tracks({100, 100, 100});
    start_list();
    machine.run_for(seconds(90));
    station.list_window.stop_decks.click();
    station.list_window.play_list.click();
    machine.run_for(seconds(30));
    EXPECT_EQ(station.list_window.remaining.caption.get(), "00:01:10");
    machine.run_for(seconds(58));
    EXPECT_EQ(times_of(OnAirEvent::Kind::loaded).back(), (std::pair<double, int>{177, 2}));
}

TEST_F(RunControlTest, ListStartWithoutFadesPutsOnTheChainThatAFaultHasPutOff) {
    const std::string lost = "C:\\Parti\\b.mp3";
    station.settings.veille_antenne = 0;
    machine.add_track(track(1), 40);
    open_list("C:\\Sonarelle\\essai.dfm", {record_of(track(1), "40", 100, 0.0), record_of(lost, "40", 100, 0.0)});
    rows().select(1);
    start_list();
    station.main_window.Désactive_audio.click();
    machine.run_for(seconds(60));
    ASSERT_EQ(station.chain.air, AirState::failed);
    machine.add_track(lost, 40);
    rows().select(1);
    station.list_window.play_list.click();
    machine.run_for(seconds(45));
    EXPECT_EQ(machine.media.on_air(), Paths{lost});
}

TEST_F(RunControlTest, PauseOfTheFirstTrackKeepsItsVolume) {
    machine.add_track(track(1), 100);
    open_list("C:\\Sonarelle\\essai.dfm", {record_of(track(1), "100", 50)});
    rows().select(1);
    start_list();
    controls(1).pause.click();
    EXPECT_EQ(station.deck_ring.deck(1).graph().get_Volume(), Millibel{-2000});
}

TEST_F(RunControlTest, ListStartsWithTheSelectedRow) {
    open_tracks({100, 100, 100});
    rows().select(3);
    start_list();
    machine.run_for(seconds(95));
    EXPECT_EQ(rows_started(), (std::vector<int>{3, 1}));
}

TEST_F(RunControlTest, ListWithoutASelectedRowStartsWithItsFirstAndCanBeZapped) {
    std::vector<enreg_liste> records;
    for (const int row : {1, 2}) {
        machine.add_track(track(row), 100);
        records.push_back(record_of(track(row), "100"));
    }
    open_list("C:\\Sonarelle\\essai.dfm", records);
    start_list();
    machine.run_for(seconds(40));
    station.list_window.zap.click();
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2}));
}

TEST_F(RunControlTest, ListStartOnARowBeyondTheChainsNumbersSaysSo) {
    open_tracks({100});
    while (rows().count() < 32768)
        rows().append({track(1), "0.10", "100.00", "", "100", ""});
    rows().select(32768);
    machine.dialogs.expect_box("La ligne 32768 ne peut pas être lue", Answer::ok);
    start_list();
    EXPECT_TRUE(machine.media.on_air().empty());
}

TEST_F(RunControlTest, ListStartedWithoutAReadingModeGoesOnBehindItsFirstTrack) {
    open_tracks({100, 100, 100});
    station.list_window.play_list.click();
    machine.run_for(seconds(95));
    EXPECT_TRUE(station.list_window.full_length_mode.value());
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2}));
}

TEST_F(RunControlTest, ListStartedInTheDecksModePlaysItsRowAlone) {
    open_tracks({100, 100, 100});
    station.list_window.player_mode.click();
    station.list_window.play_list.click();
    machine.run_for(seconds(300));
    EXPECT_EQ(rows_started(), std::vector<int>{1});
}

TEST_F(RunControlTest, ListStartedOverAFileThatPlaysIsHeardAlone) {
    open_tracks({100, 100, 100});
    play_a_file_by_hand();
    rows().select(3);
    start_list();
    EXPECT_EQ(machine.media.on_air(), Paths{track(3)});
    EXPECT_EQ(station.list_window.remaining.caption.get(), "00:01:40");
}

TEST_F(RunControlTest, ListStartOnARowThatCannotBePlayedLeavesTheTrackOnTheAir) {
    open_tracks({100, 100, 100});
    play_a_file_by_hand();
    machine.media.set_unplayable(track(3));
    rows().select(3);
    start_list();
    EXPECT_EQ(machine.media.on_air(), Paths{"C:\\main.mp3"});
    EXPECT_EQ(warning(), "Recherche de fichier\nDemarrage liste\n" + track(3) +
                             "\n / format / lecture impossible  \nabandon lecture liste");
}

TEST_F(RunControlTest, RunningListCannotBeStartedAgain) {
    open_tracks({100, 100});
    start_list();
    machine.run_for(seconds(20));
    EXPECT_FALSE(list_can_be_started());
    station.list_window.play_list.click();
    station.list_window.lect_liste.click();
    EXPECT_EQ(rows_started(), std::vector<int>{1});
    machine.run_for(seconds(90));
    EXPECT_FALSE(list_can_be_started());
}

TEST_F(RunControlTest, RunningListWithoutFadesCannotBeStartedAgain) {
    open_tracks({100, 100});
    start_list();
    station.main_window.Désactive_audio.click();
    EXPECT_FALSE(list_can_be_started());
    machine.run_for(seconds(150));
    ASSERT_EQ(rows_started(), (std::vector<int>{1, 2}));
    EXPECT_FALSE(list_can_be_started());
}

TEST_F(RunControlTest, StoppedListCanBeStartedAgain) {
    open_tracks({100, 100});
    start_list();
    station.list_window.stop_decks.click();
    EXPECT_TRUE(list_can_be_started());
}

TEST_F(RunControlTest, ListCanBeStartedAgainOnceItsDeckIsStopped) {
    open_tracks({100, 100});
    start_list();
    controls(1).stop.click();
    EXPECT_TRUE(list_can_be_started());
}

TEST_F(RunControlTest, ListCanBeStartedAgainOnceAFaultHasStoppedIt) {
    open_tracks({100, 100});
    start_list();
    station.run_control.stoppe_liste("essai");
    EXPECT_TRUE(list_can_be_started());
}

TEST_F(RunControlTest, ListCanBeStartedAgainOnceTitlesAreMixed) {
    open_tracks({100, 100});
    start_list();
    station.main_window.mix_titles.click();
    EXPECT_TRUE(list_can_be_started());
}

TEST_F(RunControlTest, ListStaysDisabledWhereAZapIsRefused) {
    open_tracks({100, 100});
    start_list();
    machine.run_for(seconds(5));
    machine.dialogs.default_answers();
    station.main_window.key_press(U'z');
    EXPECT_FALSE(list_can_be_started());
}

TEST_F(RunControlTest, EmptyListSaysSoAndPlaysNothing) {
    machine.add_track("C:\\main.mp3", 100);
    open_on(1, "C:\\main.mp3");
    for (const auto& start : {std::function{[this] { station.list_window.play_list.click(); }},
                              std::function{[this] { station.list_window.lect_liste.click(); }}}) {
        machine.dialogs.expect_box("La liste est vide", Answer::ok);
        start();
        EXPECT_TRUE(machine.media.on_air().empty());
    }
}

TEST_F(RunControlTest, HardStopEndsTheSearchForARow) {
    open_tracks({100});
    start_list();
    machine.run_for(seconds(96));
    ASSERT_TRUE(station.auto_chain.list_chain.looks_for_a_row());
    station.run_control.stoppe_liste("essai");
    EXPECT_FALSE(station.auto_chain.list_chain.looks_for_a_row());
}

TEST_F(RunControlTest, QuickLoadBehindAHardStopGoesOverToTheDecks) {
    open_tracks({100, 100});
    start_list();
    station.run_control.stoppe_liste("essai");
    station.run_control.stoppe_list();
    EXPECT_TRUE(station.main_window.deck_chain_timer.enabled());
    EXPECT_TRUE(station.chain.mode_enchainement.is_false());
}

TEST_F(RunControlTest, ListStartOnARowThatCannotBePlayedSaysSo) {
    open_tracks({100, 100, 100});
    machine.media.set_unplayable(track(1));
    start_list();
    EXPECT_EQ(warning().substr(0, 37), "Recherche de fichier\nDemarrage liste\n");
    EXPECT_EQ(station.list_window.list_status.caption.get(), "Non trouvé");
    EXPECT_TRUE(machine.media.on_air().empty());
}

TEST_F(RunControlTest, ListStartOpensNoVideoWindowForAWmvAndALaterStartDoes) {
    for (const std::string_view path : {"C:\\a.wmv", "C:\\b.wmv"}) {
        machine.add_track(path, 40);
        machine.media.set_video(path);
    }
    open_list("C:\\Sonarelle\\essai.dfm", {record_of("C:\\a.wmv", "40"), record_of("C:\\b.wmv", "40")});
    rows().select(1);
    start_list();
    machine.run_for(seconds(39));
    Paths captions;
    for (const MediaCommand& command : machine.media.log())
        if (command.action == MediaAction::caption)
            captions.push_back(command.text);
    EXPECT_EQ(captions, Paths{"b"});
}

TEST_F(RunControlTest, HardStopLeavesTheDeckPlayingAndWaits) {
    open_tracks({100, 100, 100});
    start_list();
    machine.run_for(seconds(5));
    station.run_control.stoppe_liste("essai");
    EXPECT_EQ(machine.media.on_air(), Paths{track(1)});
    EXPECT_TRUE(station.main_window.mix_titles.value());
    EXPECT_TRUE(station.chain.mode_enchainement.is_true());
    EXPECT_EQ(station.main_window.load_ahead.value(), 0);
    EXPECT_EQ(station.main_window.elapsed.caption.get(), "0");
    EXPECT_EQ(station.main_window.chain_status.caption.get(), "Play en attente");
    EXPECT_EQ(station.main_window.running_chain.caption.get(), "Chargement rapide");
    for (int deck = 1; deck <= 3; ++deck)
        EXPECT_TRUE(controls(deck).open.enabled);
}

TEST_F(RunControlTest, HardStopInAListSetsTheRunOffInTheJournalByAnEmptyLine) {
    station.main_window.Active_journal.click();
    open_tracks({100, 100, 100});
    start_list();
    const std::string before = journal_text();
    station.run_control.stoppe_liste("essai");
    EXPECT_EQ(journal_text(), before + "\r\n");
}

TEST_F(RunControlTest, HardStopLeavesTheChainOverDecksOff) {
    station.main_window.a_mode_auto.click();
    station.run_control.stoppe_liste("essai");
    EXPECT_FALSE(station.main_window.deck_chain_timer.enabled());
}

TEST_F(RunControlTest, SoftStopGoesOverToTheDecks) {
    station.main_window.Active_journal.click();
    station.main_window.mix_list.click();
    station.run_control.stoppe_list();
    EXPECT_TRUE(station.main_window.mix_titles.value());
    EXPECT_EQ(station.main_window.deck_chain_lamp.picture.get(), "bouton_noir_petitdoux.jpg");
    EXPECT_NE(journal_text().find("Liste sopp\xE9"
                                  "e a 06:00:00\r\n"),
              std::string::npos);
}

TEST_F(RunControlTest, ButtonsOfTheListWindowTellWhatTheyDo) {
    open_tracks({100, 100});
    start_list();
    machine.run_for(seconds(95));
    station.list_window.show_playing_row.mouse_move();
    EXPECT_EQ(station.list_window.play_list.hint.get(), "lecture liste");
    EXPECT_EQ(station.list_window.zap.hint.get(), "Zapper rapidement sur le fichier suvant (Z)");
    EXPECT_EQ(station.list_window.stop_decks.hint.get(), "Stopper tous les lecteurs");
    EXPECT_EQ(station.list_window.show_playing_row.hint.get(), "Position en cours N° 2");
}

TEST_F(RunControlTest, PlayingRowIsShownOnDemand) {
    open_tracks({100, 100, 100});
    start_list();
    machine.run_for(seconds(95));
    rows().select(1);
    station.list_window.show_playing_row.click();
    EXPECT_EQ(rows().selected(), 2);
}

} // namespace sonarelle
