#include "playout/deck_loading.h"

#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using Paths = std::vector<std::string>;

class DeckLoadingTest : public ChainFixture {
protected:
    static constexpr std::string_view song = "C:\\Musique\\Chanson.mp3";

    /// Loads a record on deck 1, as the menu of a quick load box does.
    void load_record(std::string_view path, std::string_view genre = "Rock", const std::string& shown = {}) {
        const DestinationRecord record{.dest_chemin = std::string{path}, .dest_genre = std::string{genre}};
        station.deck_loading.load_record(station.deck_ring.deck(1), record, shown);
    }
    /// Loads a row on a deck.
    LoadResult load_row(int deck, std::string_view path, std::string_view end = {}) {
        const DestinationRecord row{.dest_chemin = std::string{path}, .dest_fin = std::string{end}};
        return station.deck_loading.load_from_list(station.deck_ring.deck(deck), row);
    }
};

} // namespace

TEST_F(DeckLoadingTest, OpenButtonShowsLengthAndName) {
    machine.add_track(song, 83.4);
    open_on(1, song);
    EXPECT_EQ(controls(1).title.caption.get(), "00:01:23 ( Chanson )");
    EXPECT_EQ(controls(1).counter.caption.get(), "83");
    EXPECT_EQ(controls(1).progress.maximum, 83);
    EXPECT_EQ(station.chain.chemin_lecture, song);
}

TEST_F(DeckLoadingTest, OpenButtonReadiesPlayAndZap) {
    machine.add_track(song, 83);
    controls(2).play.enabled = false;
    controls(2).zap.enabled = false;
    open_on(2, song);
    EXPECT_TRUE(controls(2).play.enabled);
    EXPECT_TRUE(controls(2).zap.enabled);
}

TEST_F(DeckLoadingTest, FileLoadedOnADeckThatPlaysStartsFromItsPlayButton) {
    open_tracks({200, 200});
    machine.add_track(song, 83);
    start_list();
    machine.run_for(seconds(5));
    load_record(song);
    controls(1).play.click();
    EXPECT_EQ(machine.media.on_air(), Paths{std::string{song}});
}

TEST_F(DeckLoadingTest, OpenButtonAsksInTheMusicFolder) {
    station.settings.chemin_musique = "C:\\Sonarelle\\";
    machine.add_track(song, 83);
    open_on(3, song);
    EXPECT_EQ(machine.dialogs.last().title, "Ouvrir un fichier multimédia");
    EXPECT_EQ(machine.dialogs.last().folder, "C:\\Sonarelle\\");
    EXPECT_EQ(machine.dialogs.last().filter.find("fichier multimédia |*.mp3;*.wav;*.wma;*.mid;*.avi;*.mpg|"), 0U);
}

TEST_F(DeckLoadingTest, OpenButtonRemembersTheFolder) {
    machine.add_track(song, 83);
    open_on(1, song);
    EXPECT_EQ(machine.settings.GetSetting(settings_application, "Config", "Chemin_dernier_fichier", ""),
              "C:\\Musique\\");
}

TEST_F(DeckLoadingTest, OpenButtonAsksNextTimeInTheFolderOfTheFileBefore) {
    machine.add_track("C:\\Autre\\Chanson.mp3", 83);
    open_on(1, "C:\\Autre\\Chanson.mp3");
    open_on(2, "C:\\Autre\\Chanson.mp3");
    EXPECT_EQ(machine.dialogs.last().folder, "C:\\Autre\\");
}

TEST_F(DeckLoadingTest, OpenButtonGoesBackToManualMixing) {
    machine.add_track(song, 83);
    station.main_window.load_ahead.set_value(1);
    open_on(1, song);
    EXPECT_FALSE(station.main_window.load_ahead_timer.enabled());
    EXPECT_EQ(station.main_window.load_ahead.value(), 0);
    EXPECT_EQ(station.main_window.deck_chain_lamp.picture.get(), "bouton_noir_petitdoux.jpg");
    EXPECT_EQ(station.main_window.list_chain_lamp.picture.get(), "");
}

TEST_F(DeckLoadingTest, OpenButtonOnAPlayingDeckCutsItEvenWhenTheDialogIsCancelled) {
    open_tracks({200, 200});
    start_list();
    machine.run_for(seconds(5));
    controls(1).open.enabled = true;
    Paths heard{"?"};
    machine.dialogs.expect_box("est à l'antenne", Answer::yes);
    machine.dialogs.expect_cancel();
    machine.dialogs.on_answered = [&](const Question&) { heard = machine.media.on_air(); };
    controls(1).open.click();
    EXPECT_TRUE(heard.empty());
    EXPECT_TRUE(machine.media.on_air().empty());
    EXPECT_EQ(station.chain.chemin_lecture, track(1));
}

TEST_F(DeckLoadingTest, CancelledDialogLeavesTheTitle) {
    machine.add_track(song, 83);
    open_on(1, song);
    machine.dialogs.expect_cancel();
    controls(1).open.click();
    EXPECT_EQ(controls(1).title.caption.get(), "00:01:23 ( Chanson )");
}

TEST_F(DeckLoadingTest, FileDroppedOnADeckIsOpenedWithoutAQuestion) {
    machine.add_track(song, 83);
    controls(2).open.drop_files({std::string{song}, "C:\\Musique\\Autre.mp3"});
    EXPECT_EQ(controls(2).title.caption.get(), "00:01:23 ( Chanson )");
    EXPECT_EQ(station.deck_ring.deck(2).path, song);
}

TEST_F(DeckLoadingTest, FileDroppedWhileDraggingIsForbiddenIsLeft) {
    machine.add_track(song, 83);
    station.main_window.A_glisser_déplacer.click();
    const std::string before = controls(2).title.caption;
    controls(2).open.drop_files({std::string{song}});
    EXPECT_EQ(controls(2).title.caption.get(), before);
}

TEST_F(DeckLoadingTest, OpenButtonAsksAgainAfterARefusedDrop) {
    machine.add_track(song, 0.5);
    machine.dialogs.expect_box("Erreur lecture fichier ", Answer::ok);
    controls(1).open.drop_files({std::string{song}});
    machine.dialogs.expect_cancel();
    controls(1).open.click();
    EXPECT_EQ(machine.dialogs.last().title, "Ouvrir un fichier multimédia");
}

TEST_F(DeckLoadingTest, FileDroppedWhileTheOpenButtonIsLockedIsLeft) {
    open_tracks({200, 200});
    start_list();
    machine.run_for(seconds(5));
    machine.add_track(song, 83);
    controls(1).open.enabled = false;
    controls(1).open.drop_files({std::string{song}});
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{track(1)});
}

TEST_F(DeckLoadingTest, FileOfOneSecondIsGood) {
    machine.add_track(song, 1.0);
    open_on(1, song);
    EXPECT_EQ(controls(1).title.caption.get(), "00:00:01 ( Chanson )");
    EXPECT_EQ(controls(1).progress.maximum, 1);
}

TEST_F(DeckLoadingTest, FileBelowOneSecondIsRefusedByTheOpenButton) {
    machine.add_track(song, 0.9);
    machine.dialogs.expect_open(song);
    machine.dialogs.expect_box("Erreur lecture fichier ", Answer::ok);
    controls(1).open.click();
    EXPECT_EQ(machine.dialogs.last().icon, Icon::stop);
    EXPECT_EQ(controls(1).title.caption.get(), " - En attente");
    EXPECT_EQ(controls(1).counter.caption.get(), "0");
}

TEST_F(DeckLoadingTest, UnplayableFileIsRefusedByTheOpenButton) {
    machine.add_track(song, 83);
    machine.media.set_unplayable(song);
    machine.dialogs.expect_open(song);
    machine.dialogs.expect_box("Erreur lecture fichier ", Answer::ok);
    controls(1).open.click();
    EXPECT_EQ(controls(1).title.caption.get(), " - En attente");
}

TEST_F(DeckLoadingTest, ShortFileFromALostMusicFolderSendsTheNextOpeningToTheProgramFolder) {
    station.settings.chemin_musique = "C:\\Parti";
    machine.add_track(song, 0.5);
    machine.dialogs.expect_open(song);
    machine.dialogs.expect_box("C:\\Parti", Answer::ok);
    controls(1).open.click();
    EXPECT_EQ(station.settings.chemin_musique, "C:\\Sonarelle\\");
    EXPECT_EQ(controls(1).title.caption.get(), " - En attente");
}

TEST_F(DeckLoadingTest, GoodFileFromALostMusicFolderIsTaken) {
    station.settings.chemin_musique = "C:\\Parti";
    machine.add_track(song, 83);
    open_on(1, song);
    EXPECT_EQ(controls(1).title.caption.get(), "00:01:23 ( Chanson )");
}

TEST_F(DeckLoadingTest, OpenButtonTakesADraggedFileWithoutAsking) {
    machine.add_track(song, 83);
    station.chain.chemin_lecture = song;
    station.chain.ajout_externe = true;
    controls(1).open.click();
    EXPECT_EQ(controls(1).title.caption.get(), "00:01:23 ( Chanson )");
    EXPECT_TRUE(station.chain.ajout_externe.is_false());
}

TEST_F(DeckLoadingTest, NameOfTwentyTwoCharactersKeepsItsCase) {
    machine.add_track("C:\\ABCDEFGHIJKLMNOPQRSTUV.mp3", 60);
    open_on(1, "C:\\ABCDEFGHIJKLMNOPQRSTUV.mp3");
    EXPECT_EQ(controls(1).title.caption.get(), "00:01:00 ( ABCDEFGHIJKLMNOPQRSTUV )");
}

TEST_F(DeckLoadingTest, NameOfTwentyThreeCharactersLosesItsCaseAndGainsDots) {
    machine.add_track("C:\\ABCDEFGHIJKLMNOPQRSTUVW.mp3", 60);
    open_on(1, "C:\\ABCDEFGHIJKLMNOPQRSTUVW.mp3");
    EXPECT_EQ(controls(1).title.caption.get(), "00:01:00 ( abcdefghijklmnopqrstuvw ... )");
}

TEST_F(DeckLoadingTest, LongNameIsCutByCharactersNotBytes) {
    machine.add_track("C:\\ÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉ.mp3", 60);
    open_on(1, "C:\\ÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉ.mp3");
    EXPECT_EQ(controls(1).title.caption.get(), "00:01:00 ( ééééééééééééééééééééééé ... )");
}

TEST_F(DeckLoadingTest, FileWithoutAFourCharacterEndingLosesCharactersOfItsName) {
    machine.add_track("C:\\Musique\\concert.flac", 60);
    open_on(1, "C:\\Musique\\concert.flac");
    EXPECT_EQ(controls(1).title.caption.get(), "00:01:00 ( concert. )");
}

TEST_F(DeckLoadingTest, RecordWithoutItsFileIsReportedAndNotFound) {
    machine.add_track("C:\\Musique\\autre.mp3", 60);
    machine.dialogs.expect_box("Chanson.mp3 n'existe pas ou plus", Answer::ok);
    load_record(song);
    EXPECT_EQ(controls(1).title.caption.get(), "Non trouvé");
    EXPECT_EQ(machine.dialogs.last().icon, Icon::stop);
    EXPECT_EQ(station.chain.chemin_lecture, "");
}

TEST_F(DeckLoadingTest, RecordOnAMissingDriveIsReportedAndNotFound) {
    machine.dialogs.expect_box("Chanson.mp3 n'existe pas ou plus", Answer::ok);
    load_record("E:\\Musique\\Chanson.mp3");
    EXPECT_EQ(controls(1).title.caption.get(), "Non trouvé");
}

TEST_F(DeckLoadingTest, RecordIsFoundIgnoringCase) {
    machine.add_track(song, 60);
    load_record("c:\\musique\\CHANSON.MP3");
    EXPECT_EQ(controls(1).title.caption.get(), "00:01:00 ( CHANSON )");
}

TEST_F(DeckLoadingTest, RecordOfTheNetworkIsTakenAsItStands) {
    load_record("C:\\n'importe quoi.mp3", "réseau", "\\\\serveur\\partage\\a.mp3");
    EXPECT_EQ(station.chain.chemin_lecture, "\\\\serveur\\partage\\a.mp3");
    EXPECT_TRUE(machine.dialogs.asked().empty());
}

TEST_F(DeckLoadingTest, RecordBelowOneSecondLeavesBarAndButtonsWithoutAWord) {
    machine.add_track(song, 0.9);
    controls(1).zap.enabled = false;
    load_record(song);
    EXPECT_EQ(controls(1).title.caption.get(), "00:00:00 ( Chanson )");
    EXPECT_EQ(controls(1).counter.caption.get(), "0");
    EXPECT_EQ(controls(1).progress.maximum, 100);
    EXPECT_FALSE(controls(1).zap.enabled);
}

TEST_F(DeckLoadingTest, ListLoadShowsTheRecordsEnd) {
    machine.add_track(song, 100);
    station.chain.mode_enchainement = true;
    load_row(2, song, "80.00");
    EXPECT_EQ(controls(2).counter.caption.get(), "80.00");
    EXPECT_EQ(station.deck_ring.deck(2).duree_piste, "100");
    EXPECT_TRUE(station.main_window.list_chain_timer.enabled());
}

TEST_F(DeckLoadingTest, ListLoadOfTheFullLengthShowsTheFilesEnd) {
    machine.add_track(song, 100);
    station.list_window.full_length_mode.click();
    load_row(2, song, "80.00");
    EXPECT_EQ(controls(2).counter.caption.get(), "100");
}

TEST_F(DeckLoadingTest, ListLoadInPreListenIsCutAtItsSeconds) {
    machine.add_track(song, 100);
    station.chain.mode_enchainement = true;
    station.chain.preecoute_active = true;
    station.chain.duree_preecoute = 10;
    load_row(3, song);
    EXPECT_EQ(controls(3).counter.caption.get(), "10");
}

TEST_F(DeckLoadingTest, ListLoadInPreListenOfAShorterFileHasItsLength) {
    machine.add_track(song, 8);
    station.chain.mode_enchainement = true;
    station.chain.preecoute_active = true;
    station.chain.duree_preecoute = 10;
    load_row(3, song);
    EXPECT_EQ(controls(3).counter.caption.get(), "8");
}

TEST_F(DeckLoadingTest, ListLoadShortensTheNameOfTheListWindow) {
    machine.add_track("C:\\abcdefghijklmnopqrst.mp3", 60);
    load_row(1, "C:\\abcdefghijklmnopqrst.mp3");
    EXPECT_EQ(station.list_window.track_name.caption.get(), "abcdefghijklmnop ...");
    EXPECT_EQ(station.small_player.caption.get(), "abcdefghijklmnopqrst");
    EXPECT_EQ(station.list_window.remaining.caption.get(), "00:01:00");
}

TEST_F(DeckLoadingTest, ListLoadOfAnUnplayableFileOnlySaysSo) {
    EXPECT_EQ(load_row(1, "C:\\absent.mp3"), LoadResult::failed);
}

TEST_F(DeckLoadingTest, VideoWindowOfAnAviClosesAtItsStopAndThatOfAWmvStays) {
    for (const std::string_view path : {"C:\\film.avi", "C:\\film.wmv"}) {
        machine.add_track(path, 60);
        machine.media.set_video(path);
    }
    const auto graphs_after_stop = [this](std::string_view path) {
        open_on(1, path);
        controls(1).play.click();
        controls(1).stop.click();
        controls(1).open.enabled = true;
        station.deck_ring.deck(1).drop_graph();
        return machine.media.graphs();
    };
    EXPECT_EQ(graphs_after_stop("C:\\film.avi"), 0U);
    EXPECT_EQ(graphs_after_stop("C:\\film.wmv"), 1U);
}

TEST_F(DeckLoadingTest, FileLoadedOnADeckThatPlaysAVideoCutsIt) {
    machine.add_track("C:\\film.avi", 60);
    machine.media.set_video("C:\\film.avi");
    machine.add_track(song, 83);
    open_on(1, "C:\\film.avi");
    controls(1).play.click();
    controls(1).open.enabled = true;
    machine.dialogs.expect_box("est à l'antenne", Answer::yes);
    open_on(1, song);
    EXPECT_TRUE(machine.media.on_air().empty());
}

TEST_F(DeckLoadingTest, VideoWindowOfAWmvClosesAtTheNextLoad) {
    machine.add_track("C:\\film.wmv", 60);
    machine.media.set_video("C:\\film.wmv");
    machine.add_track(song, 83);
    open_on(1, "C:\\film.wmv");
    controls(1).play.click();
    controls(1).stop.click();
    controls(1).open.enabled = true;
    open_on(1, song);
    EXPECT_EQ(machine.media.graphs(), 1U);
}

TEST_F(DeckLoadingTest, SpecialMixButtonNamesItsKeyAndFile) {
    machine.add_track(song, 60);
    open_on(3, song);
    EXPECT_EQ(controls(3).special_mix.hint.get(),
              "Mixage spécial sur lecteur en cours (F11) avec : " + std::string{song});
}

TEST_F(DeckLoadingTest, FileOpenedByHandPlaysFromItsBeginningWhereTheListsTracksBeginLater) {
    open_tracks({100, 100}, 12.0);
    machine.add_track("C:\\jingle.mp3", 5);
    start_list();
    open_on(2, "C:\\jingle.mp3");
    controls(2).play.click();
    EXPECT_EQ(station.deck_ring.deck(2).graph().get_CurrentPosition(), 0.0);
}

TEST_F(DeckLoadingTest, FileOpenedByHandPlaysToItsEndWhileTheListRuns) {
    open_tracks({100, 100});
    machine.add_track("C:\\main.mp3", 80);
    start_list();
    machine.run_for(seconds(5));
    machine.dialogs.expect_open("C:\\main.mp3");
    station.main_window.deck(2).open.click();
    station.main_window.deck(2).play.click();
    EXPECT_EQ(station.main_window.deck(2).counter.caption.get(), "80");
    EXPECT_EQ(station.chain.lecteur_en_cours, 2);
}

} // namespace sonarelle
