#include "playout/deck_volume.h"

#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

class DeckVolumeTest : public ChainFixture {
protected:
    void open_song() {
        machine.add_track(track(1), 100);
        open_on(1, track(1));
    }
    [[nodiscard]] int volume_of(int deck) { return station.deck_ring.deck(deck).graph().get_Volume().count(); }
    void scroll_after(std::string_view title, int ticks) {
        controls(1).title.caption = std::string{title};
        controls(1).scroll_timer.enable();
        machine.run_for(milliseconds(500 * ticks));
    }
    [[nodiscard]] std::string title() { return controls(1).title.caption; }
};

} // namespace

TEST_F(DeckVolumeTest, EachStepOfTheSliderIsTwoDecibels) {
    open_song();
    for (int value = 1; value <= 20; ++value) {
        controls(1).slider.set_value(value);
        EXPECT_EQ(volume_of(1), -200 * value);
        EXPECT_EQ(controls(1).percent.caption.get(), std::to_string(100 - 5 * value) + "%");
    }
}

TEST_F(DeckVolumeTest, TopOfTheSliderIsFullVolume) {
    open_song();
    controls(1).slider.set_value(20);
    EXPECT_EQ(controls(1).percent.caption.get(), "0%");
    controls(1).slider.set_value(0);
    EXPECT_EQ(volume_of(1), 0);
    EXPECT_EQ(controls(1).percent.caption.get(), "100%");
    EXPECT_EQ(controls(1).slider.hint.get(), "Volume %100");
}

TEST_F(DeckVolumeTest, MovedSliderWithoutAFileChangesNothing) {
    controls(2).slider.set_value(5);
    EXPECT_EQ(controls(2).slider.value(), 5);
    EXPECT_FALSE(station.deck_ring.deck(2).has_graph());
}

TEST_F(DeckVolumeTest, MovedSliderWithoutAFileShowsItsPercent) {
    controls(2).slider.set_value(5);
    EXPECT_EQ(controls(2).percent.caption.get(), "75%");
    EXPECT_EQ(controls(2).slider.hint.get(), "Volume %75");
}

TEST_F(DeckVolumeTest, ButtonsMoveTheSliderByOneAndStopAtItsEnds) {
    open_song();
    controls(1).quieter.click();
    controls(1).quieter.click();
    controls(1).louder.click();
    EXPECT_EQ(controls(1).slider.value(), 1);
    EXPECT_EQ(volume_of(1), -200);
    controls(1).louder.click();
    controls(1).louder.click();
    EXPECT_EQ(controls(1).slider.value(), 0);
    controls(1).slider.set_value(20);
    controls(1).quieter.click();
    EXPECT_EQ(controls(1).slider.value(), 20);
}

TEST_F(DeckVolumeTest, RecordOfEightyPercentMovesTheSlider) {
    open_song();
    station.deck_volume.apply_record(station.deck_ring.deck(1), -800);
    EXPECT_EQ(controls(1).slider.value(), 4);
    EXPECT_EQ(controls(1).percent.caption.get(), "80%");
    EXPECT_EQ(volume_of(1), -800);
}

TEST_F(DeckVolumeTest, EveryVolumeOfARecordFindsItsPlaceOnTheSlider) {
    open_song();
    for (int step = 1; step <= 20; ++step) {
        station.deck_volume.apply_record(station.deck_ring.deck(1), -200 * step);
        EXPECT_EQ(controls(1).slider.value(), step);
    }
}

TEST_F(DeckVolumeTest, RecordOfFullVolumeLeavesTheSliderLower) {
    open_song();
    controls(1).slider.set_value(6);
    station.deck_volume.apply_record(station.deck_ring.deck(1), 0);
    EXPECT_EQ(volume_of(1), 0);
    EXPECT_EQ(controls(1).slider.value(), 6);
    EXPECT_EQ(controls(1).percent.caption.get(), "70%");
}

TEST_F(DeckVolumeTest, RecordsVolumeIsNotReadInTheChainOverDecks) {
    open_song();
    station.main_window.mix_titles.click();
    station.deck_volume.apply_record(station.deck_ring.deck(1), -800);
    EXPECT_EQ(controls(1).slider.value(), 0);
    EXPECT_EQ(volume_of(1), 0);
}

TEST_F(DeckVolumeTest, FileWithoutSoundKeepsTheSliderWhereTheOperatorPutIt) {
    machine.media.set_silent(track(1));
    open_song();
    controls(1).slider.set_value(7);
    EXPECT_EQ(controls(1).slider.value(), 7);
    EXPECT_EQ(controls(1).percent.caption.get(), "65%");
}

TEST_F(DeckVolumeTest, TitleOfOddLengthTurnsByOneCharacter) {
    scroll_after("abcde", 1);
    EXPECT_EQ(title(), "bcdea");
    scroll_after("abcde", 5);
    EXPECT_EQ(title(), "abcde");
}

TEST_F(DeckVolumeTest, TitleOfEvenLengthGainsOneCharacterOnce) {
    scroll_after("abcd", 1);
    EXPECT_EQ(title(), "abcda");
    machine.run_for(seconds(30));
    EXPECT_EQ(title().size(), 5U);
}

TEST_F(DeckVolumeTest, TitleTurnsByCharactersNotBytes) {
    scroll_after("éab", 1);
    EXPECT_EQ(title(), "abé");
}

TEST_F(DeckVolumeTest, EmptyTitleStays) {
    scroll_after("", 3);
    EXPECT_EQ(title(), "");
}

TEST_F(DeckVolumeTest, TitleScrollsWhileTheDeckPlays) {
    open_tracks({100, 100});
    start_list();
    EXPECT_EQ(title(), "titre 1 - ");
    machine.run_for(milliseconds(500));
    EXPECT_EQ(title(), "titre 1 - t");
    machine.run_for(milliseconds(500));
    EXPECT_EQ(title(), "itre 1 - tt");
}

TEST_F(DeckVolumeTest, KeepVolumeWritesTheRecordAndTheRow) {
    open_tracks({100, 100});
    start_list();
    controls(1).slider.set_value(5);
    machine.dialogs.expect_box("Sauvegarde des paramètres en cours éffectués .", Answer::ok);
    controls(1).keep_volume.click();
    EXPECT_EQ(record_in(machine.disk.bytes("C:\\Sonarelle\\essai.dfm"), 1).volume(), 75);
    EXPECT_EQ(rows().sub_item(1, 4), "75");
}

TEST_F(DeckVolumeTest, KeepVolumeBehindTheLoadStepStillWritesTheRowThatPlays) {
    open_tracks({100, 100});
    start_list();
    machine.run_for(seconds(90));
    controls(1).slider.set_value(5);
    machine.dialogs.expect_box("Sauvegarde", Answer::ok);
    controls(1).keep_volume.click();
    const std::string list = machine.disk.bytes("C:\\Sonarelle\\essai.dfm");
    EXPECT_EQ(record_in(list, 1).volume(), 75);
    EXPECT_EQ(record_in(list, 1).trimmed_chemin(), track(1));
    EXPECT_EQ(record_in(list, 2).volume(), 100);
}

TEST_F(DeckVolumeTest, KeepVolumeBehindAHardStopStillWritesTheRowThatPlays) {
    open_tracks({100, 100});
    start_list();
    station.run_control.stoppe_liste("");
    controls(1).slider.set_value(5);
    machine.dialogs.expect_box("Sauvegarde", Answer::ok);
    controls(1).keep_volume.click();
    EXPECT_EQ(record_in(machine.disk.bytes("C:\\Sonarelle\\essai.dfm"), 1).volume(), 75);
}

TEST_F(DeckVolumeTest, KeepVolumeInRandomOrderBehindTheLoadStepWritesTheRowThatPlays) {
    open_tracks({100, 100, 100, 100, 100});
    station.list_window.random_mode.click();
    station.list_window.play_list.click();
    machine.run_for(seconds(90));
    ASSERT_NE(station.list.index_en_cours, 1);
    controls(1).slider.set_value(5);
    machine.dialogs.expect_box("Sauvegarde", Answer::ok);
    controls(1).keep_volume.click();
    const std::string list = machine.disk.bytes("C:\\Sonarelle\\essai.dfm");
    EXPECT_EQ(record_in(list, 1).volume(), 75);
    for (std::size_t row = 2; row <= 5; ++row)
        EXPECT_EQ(record_in(list, row).volume(), 100);
}

TEST_F(DeckVolumeTest, KeepVolumeOfAFileThatBelongsToNoRowSaysSo) {
    open_tracks({100, 100});
    machine.add_track("C:\\main.mp3", 100);
    start_list();
    const std::string before = machine.disk.bytes("C:\\Sonarelle\\essai.dfm");
    open_on(2, "C:\\main.mp3");
    controls(2).play.click();
    controls(2).slider.set_value(5);
    machine.dialogs.expect_box("Ce titre n'est pas dans la liste", Answer::ok);
    controls(2).keep_volume.click();
    EXPECT_EQ(machine.disk.bytes("C:\\Sonarelle\\essai.dfm"), before);
}

TEST_F(DeckVolumeTest, KeepVolumeOfADeckThatIsNotReadySaysSo) {
    open_tracks({100, 100});
    start_list();
    controls(2).play.enabled = false;
    machine.dialogs.expect_box("le lecteur n'est pas encore validé ", Answer::ok);
    controls(2).keep_volume.click();
    EXPECT_EQ(machine.dialogs.last().icon, Icon::information);
}

TEST_F(DeckVolumeTest, KeepVolumeInTheChainOverDecksDoesNothing) {
    open_on_all({100, 100, 100});
    station.main_window.mix_titles.click();
    controls(1).play.enabled = false;
    controls(1).keep_volume.click();
    EXPECT_EQ(machine.dialogs.asked().size(), 3U);
}

TEST_F(DeckVolumeTest, KeepVolumeInAnEmptyListWritesNothingAndSaysNothing) {
    open_tracks({100, 100});
    start_list();
    machine.disk.put_file("C:\\Sonarelle\\essai.dfm", "");
    controls(1).keep_volume.click();
    EXPECT_EQ(machine.disk.bytes("C:\\Sonarelle\\essai.dfm"), "");
    EXPECT_EQ(machine.dialogs.asked().size(), 1U);
}

TEST_F(DeckVolumeTest, KeepVolumeWithoutAListAsksForOneAndRefusesAnotherEnding) {
    open_tracks({100, 100});
    start_list();
    station.list.fichier_liste.clear();
    machine.dialogs.expect_open("C:\\Sonarelle\\essai.rfm");
    controls(1).keep_volume.click();
    EXPECT_EQ(machine.dialogs.last().filter, "fichier (*.dfm)|*.dfm");
    EXPECT_EQ(station.list.fichier_liste, "");
}

} // namespace sonarelle
