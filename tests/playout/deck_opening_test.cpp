// A file opened by hand while the air goes on.
#include "playout/air_view.h"
#include "playout/chain_fixture.h"
#include "playout/deck_loading.h"

namespace sonarelle {

namespace {

using Paths = std::vector<std::string>;

class DeckOpening : public ChainFixture {
protected:
    static constexpr std::string_view song = "C:\\Musique\\Chanson.mp3";

    void play_list_for(int seconds_played) {
        open_tracks({100, 100, 100, 100});
        machine.add_track(song, 83);
        start_list();
        machine.run_for(seconds(seconds_played));
    }
    /// The file dialog of a deck stands open for so long.
    void open_slowly(int deck, int seconds_open) {
        machine.dialogs.expect_open(song, seconds(seconds_open));
        controls(deck).open.click();
    }
    [[nodiscard]] DeckRole role(int deck) { return role_of(station.desk, station.deck_ring.deck(deck)); }
};

} // namespace

TEST_F(DeckOpening, OnADeckThatSoundsAsksFirst) {
    play_list_for(5);
    machine.dialogs.expect_box("titre 1 est à l'antenne", Answer::no);
    controls(1).open.click();
    EXPECT_EQ(machine.dialogs.last().buttons, Buttons::yes_no);
    EXPECT_EQ(machine.dialogs.last().default_button, 2);
}

TEST_F(DeckOpening, OnADeckThatSoundsChangesNothingAfterANo) {
    play_list_for(5);
    machine.dialogs.expect_box("est à l'antenne", Answer::no);
    controls(1).open.click();
    EXPECT_EQ(machine.media.on_air(), Paths{track(1)});
    EXPECT_TRUE(station.main_window.load_ahead_timer.enabled());
    machine.run_for(seconds(95));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2}));
}

TEST_F(DeckOpening, OnADeckThatFadesAsksToo) {
    play_list_for(98);
    machine.dialogs.expect_box("titre 1 est à l'antenne", Answer::no);
    controls(1).open.click();
    EXPECT_EQ(machine.media.on_air().size(), 2U);
}

TEST_F(DeckOpening, AsksAnewWhenAnotherTrackCameOnTheDeckBehindTheQuestion) {
    play_list_for(98);
    machine.dialogs.expect_box("titre 1 est à l'antenne", Answer::yes, seconds(200));
    machine.dialogs.expect_box("titre 4 est à l'antenne", Answer::no);
    controls(1).open.click();
    EXPECT_EQ(machine.media.on_air().back(), track(4));
    EXPECT_EQ(station.chain.chemin_lecture, track(4));
}

TEST_F(DeckOpening, OnAStoppedDeckAsksNothing) {
    play_list_for(5);
    controls(1).stop.click();
    open_on(1, song);
    EXPECT_EQ(controls(1).title.caption.get(), "00:01:23 ( Chanson )");
}

TEST_F(DeckOpening, FileDroppedOnADeckThatSoundsAsksFirst) {
    play_list_for(5);
    machine.dialogs.expect_box("est à l'antenne", Answer::no);
    controls(1).open.drop_files({std::string{song}});
    EXPECT_EQ(station.chain.chemin_lecture, track(1));
    EXPECT_EQ(machine.media.on_air(), Paths{track(1)});
}

TEST_F(DeckOpening, FileDroppedOnADeckThatSoundsIsTakenAfterAYes) {
    play_list_for(5);
    machine.dialogs.expect_box("est à l'antenne", Answer::yes);
    controls(1).open.drop_files({std::string{song}});
    EXPECT_EQ(station.chain.chemin_lecture, song);
    EXPECT_EQ(machine.dialogs.asked().size(), 2U);
}

TEST_F(DeckOpening, RowForADeckThatWentOnTheAirBehindItsMenuAsksFirst) {
    play_list_for(80);
    station.list_window.Load_Pl.open();
    machine.run_for(seconds(25));
    rows().select(3);
    machine.dialogs.expect_box("titre 2 est à l'antenne", Answer::no);
    station.list_window.char2.click();
    EXPECT_EQ(machine.media.on_air(), Paths{track(2)});
    EXPECT_EQ(station.chain.chemin_lecture2, track(2));
}

TEST_F(DeckOpening, DropThatCutsTheListLetsItBeStarted) {
    play_list_for(5);
    EXPECT_FALSE(station.list_window.play_list.enabled);
    machine.dialogs.expect_box("est à l'antenne", Answer::yes);
    controls(1).open.drop_files({std::string{song}});
    EXPECT_TRUE(station.list_window.play_list.enabled);
}

TEST_F(DeckOpening, RowThatCutsTheListLetsItBeStarted) {
    play_list_for(80);
    station.list_window.Load_Pl.open();
    machine.run_for(seconds(25));
    EXPECT_FALSE(station.list_window.play_list.enabled);
    rows().select(3);
    machine.dialogs.expect_box("titre 2 est à l'antenne", Answer::yes);
    station.list_window.char2.click();
    EXPECT_TRUE(station.list_window.play_list.enabled);
}

TEST_F(DeckOpening, RowForADeckThatFadesIsTakenAfterAYes) {
    play_list_for(98);
    rows().select(3);
    machine.dialogs.expect_box("titre 1 est à l'antenne", Answer::yes);
    station.list_window.char1.click();
    EXPECT_EQ(station.chain.chemin_lecture, track(3));
    EXPECT_EQ(machine.media.on_air(), Paths{track(2)});
}

TEST_F(DeckOpening, ChoiceForADeckThatWentOnTheAirBehindItsDialogIsRefused) {
    play_list_for(80);
    machine.dialogs.expect_open(song, seconds(20));
    machine.dialogs.expect_box("Le lecteur 2 est passé à l'antenne", Answer::ok);
    controls(2).open.click();
    EXPECT_EQ(machine.media.on_air().back(), track(2));
    EXPECT_EQ(station.deck_ring.deck(2).path, track(2));
    machine.run_for(seconds(90));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2, 3}));
}

TEST_F(DeckOpening, CancelOnADeckThatWentOnTheAirBehindItsDialogLeavesItsTrack) {
    play_list_for(80);
    machine.dialogs.expect_cancel(seconds(20));
    controls(2).open.click();
    EXPECT_EQ(machine.media.on_air().back(), track(2));
}

TEST_F(DeckOpening, ChoiceForADeckThatTheChainHasLoadedBehindItsDialogIsTaken) {
    play_list_for(80);
    open_slowly(2, 10);
    EXPECT_EQ(station.deck_ring.deck(2).path, song);
    EXPECT_EQ(controls(2).title.caption.get(), "00:01:23 ( Chanson )");
}

TEST_F(DeckOpening, ChoiceForADeckThatTheChainHasDroppedBehindItsDialogIsTaken) {
    play_list_for(80);
    open_slowly(2, 205);
    EXPECT_EQ(station.deck_ring.deck(2).path, song);
    EXPECT_EQ(role(2), DeckRole::loaded);
}

TEST_F(DeckOpening, UnreadableFileIsNamedWithItsReason) {
    machine.add_track(song, 83);
    machine.media.set_unplayable(song);
    machine.dialogs.expect_open(song);
    machine.dialogs.expect_box(
        "Erreur lecture fichier " + std::string{failure_description(FailureNumber::unplayable_file)}, Answer::ok);
    controls(2).open.click();
    EXPECT_NE(machine.dialogs.last().text.find(song), std::string::npos);
}

TEST_F(DeckOpening, UnreadableFileLeavesAnEmptyDeckBehindItsMessage) {
    machine.add_track(song, 83);
    machine.media.set_unplayable(song);
    DeckRole seen = DeckRole::loaded;
    machine.dialogs.on_answered = [&](const Question&) { seen = role(2); };
    machine.dialogs.expect_open(song);
    machine.dialogs.expect_box("Erreur lecture fichier ", Answer::ok);
    controls(2).open.click();
    EXPECT_EQ(seen, DeckRole::empty);
    EXPECT_EQ(station.deck_ring.deck(2).path, "");
}

TEST_F(DeckOpening, UnreadableFileInPlaceOfATrackPutsItsBarBack) {
    play_list_for(5);
    machine.media.set_unplayable(song);
    machine.dialogs.expect_box("est à l'antenne", Answer::yes);
    machine.dialogs.expect_open(song);
    machine.dialogs.expect_box("Erreur lecture fichier ", Answer::ok);
    controls(1).open.click();
    EXPECT_EQ(controls(1).progress.value, 0);
    EXPECT_EQ(controls(1).title.caption.get(), waiting_title);
}

TEST_F(DeckOpening, PlaysFromItsBeginningWhereTheRowBeforeBeganLater) {
    open_tracks({100, 100}, 12.0);
    machine.add_track(song, 10);
    start_list();
    rows().select(2);
    station.list_window.char2.click();
    open_on(2, song);
    controls(2).play.click();
    EXPECT_EQ(station.deck_ring.deck(2).graph().get_CurrentPosition(), 0.0);
    EXPECT_EQ(controls(2).counter.caption.get(), "10");
}

TEST_F(DeckOpening, StartsAsLoudAsItsSliderShowsWhateverRecordWasRead) {
    machine.add_track(track(1), 100);
    machine.add_track(track(2), 100);
    machine.add_track(song, 83);
    open_list("C:\\Sonarelle\\essai.dfm", {record_of(track(1), "100"), record_of(track(2), "100", 20)});
    rows().select(1);
    start_list();
    open_on(3, song);
    controls(3).slider.set_value(3);
    rows().select(2);
    station.list_window.char2.click();
    controls(3).play.click();
    EXPECT_EQ(station.deck_ring.deck(3).graph().get_Volume(), Millibel{-600});
    EXPECT_EQ(controls(3).slider.value(), 3);
}

TEST_F(DeckOpening, RecordOfAQuickLoadHasItsVolumeInPercent) {
    play_list_for(5);
    for (const auto& [percent, attenuation] : {std::pair{50, -2000}, std::pair{100, 0}, std::pair{0, 0}}) {
        station.deck_loading.load_record(station.deck_ring.deck(3),
                                         {.dest_chemin = std::string{song}, .dest_volume = percent}, "");
        controls(3).play.enabled = true;
        controls(3).play.click();
        EXPECT_EQ(station.deck_ring.deck(3).graph().get_Volume(), Millibel{attenuation}) << percent;
    }
}

TEST_F(DeckOpening, IsNamedByItsOwnDeckWhileTheListRuns) {
    play_list_for(90);
    open_on(3, song);
    controls(3).play.click();
    EXPECT_EQ(controls(3).title.caption.get(), "Chanson - ");
    EXPECT_NE(station.main_window.caption.get().find("Chanson"), std::string::npos);
    EXPECT_EQ(station.list_window.track_name.caption.get(), "Chanson");
}

TEST_F(DeckOpening, HasItsOwnLengthInTheChainOverDecks) {
    play_list_for(5);
    machine.media.set_length(song, 400);
    controls(1).stop.click();
    open_on(1, song);
    controls(1).play.click();
    station.list_window.player_mode.click();
    EXPECT_EQ(controls(1).counter.caption.get(), "400");
}

namespace {

/// How each door takes a file of exactly a second.
class FileOfOneSecond : public DeckOpening {
protected:
    void SetUp() override { machine.add_track(song, 1.0); }
    DestinationRecord row{.dest_chemin = std::string{song}, .dest_fin = "1"};
};

} // namespace

TEST_F(FileOfOneSecond, OfARecordIsGood) {
    controls(2).zap.enabled = false;
    station.deck_loading.load_record(station.deck_ring.deck(2), row, "");
    EXPECT_EQ(controls(2).progress.maximum, 1);
    EXPECT_TRUE(controls(2).zap.enabled);
}

TEST_F(FileOfOneSecond, OfAListIsGood) {
    EXPECT_EQ(station.deck_loading.load_from_list(station.deck_ring.deck(2), row), LoadResult::loaded);
    EXPECT_EQ(controls(2).progress.maximum, 1);
}

TEST_F(FileOfOneSecond, OfTheCommandLineIsGood) {
    station.deck_loading.charge_lire(std::string{song});
    EXPECT_EQ(controls(1).progress.maximum, 1);
    EXPECT_TRUE(machine.dialogs.asked().empty());
}

TEST_F(FileOfOneSecond, BeginsWhereItsRecordBegins) {
    row.dest_debut = 0.5;
    station.deck_loading.load_from_list(station.deck_ring.deck(2), row);
    controls(2).progress.maximum = 100;
    controls(2).play.click();
    EXPECT_EQ(station.deck_ring.deck(2).graph().get_CurrentPosition(), 0.5);
    EXPECT_EQ(controls(2).progress.maximum, 1);
}

TEST_F(FileOfOneSecond, AndLessFailsInAListLoad) {
    machine.media.set_length(song, 0.99);
    EXPECT_EQ(station.deck_loading.load_from_list(station.deck_ring.deck(3), row), LoadResult::too_short);
    machine.media.set_length(song, 1.0);
    EXPECT_EQ(station.deck_loading.load_from_list(station.deck_ring.deck(3), row), LoadResult::loaded);
}

TEST_F(DeckOpening, ReadiesItsOwnDeckAndNoOtherBesideTheMainOne) {
    play_list_for(5);
    open_on(3, song);
    EXPECT_TRUE(controls(3).play.enabled);
    EXPECT_TRUE(controls(3).zap.enabled);
    EXPECT_FALSE(controls(2).play.enabled);
    EXPECT_FALSE(controls(1).open.enabled);
    EXPECT_TRUE(controls(2).open.enabled);
}

TEST_F(DeckOpening, AfterARowLeavesNoEndOfIt) {
    play_list_for(5);
    rows().select(2);
    station.list_window.char2.click();
    open_on(2, song);
    EXPECT_EQ(station.deck_ring.deck(2).fin_piste, "");
    EXPECT_FALSE(station.deck_ring.deck(2).volume_piste);
}

TEST_F(DeckOpening, ShowsTheRecordOfARowThatIsLoadedByHand) {
    play_list_for(5);
    rows().select(3);
    station.list_window.char3.click();
    EXPECT_EQ(controls(3).title.caption.get(), "00:01:40 ( titre 3 )");
    EXPECT_EQ(station.deck_ring.deck(3).path, track(3));
}

} // namespace sonarelle
