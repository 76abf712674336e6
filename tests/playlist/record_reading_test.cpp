#include "playlist/record_reading.h"

#include "playout/deck_record.h"
#include "support/station_fixture.h"

namespace sonarelle {

namespace {

class RecordReadingTest : public StationFixture {
protected:
    void put_list(const std::vector<enreg_liste>& records) {
        machine.disk.put_file("C:\\Sonarelle\\matin.dfm", bytes_of(records));
        station.list.fichier_liste = "matin.dfm";
    }

    DestinationRecord read_destination(int number, DestinationRecord before = {}) {
        return station.record_reading.lire_enreg_destinataire(number, std::move(before));
    }
    DraggedRecord read_dragged(int number) { return station.record_reading.lire_enreg_dragdrop(number); }
    DestinationRecord read_for_deck(int number, DestinationRecord before = {}) {
        return lire(machine.platform, "matin.dfm", number, std::move(before));
    }
};

} // namespace

TEST_F(RecordReadingTest, LeavesTheRecordBeforeWithoutAList) {
    EXPECT_EQ(read_destination(1, {.dest_chemin = "avant"}).dest_chemin, "avant");
}

TEST_F(RecordReadingTest, OfIndexZeroReadsRecordOne) {
    put_list({record_of("C:\\a.mp3"), record_of("C:\\b.mp3")});
    EXPECT_EQ(read_destination(0).dest_chemin, "C:\\a.mp3");
}

TEST_F(RecordReadingTest, OfADraggedRowTakesThePath) {
    put_list({record_of("C:\\a.mp3"), record_of("C:\\b.mp3")});
    EXPECT_EQ(read_dragged(2).drop_chemin, "C:\\b.mp3");
}

TEST_F(RecordReadingTest, TrimsThePathOnBothSides) {
    put_list({record_of("  C:\\a.mp3")});
    EXPECT_EQ(read_destination(1).dest_chemin, "C:\\a.mp3");
}

TEST_F(RecordReadingTest, LowersTheCaseOfTheEnd) {
    put_list({record_of("a", "1E2")});
    EXPECT_EQ(read_destination(1).dest_fin, "1e2");
}

TEST_F(RecordReadingTest, KeepsTheEightCharactersOfTheDuration) {
    put_list({record_of("a", "1", 100, 0, "", "X")});
    EXPECT_EQ(read_destination(1).dest_duree, "X       ");
}

TEST_F(RecordReadingTest, KeepsTheStartAsItIs) {
    put_list({record_of("a", "1", 100, 1.23456)});
    EXPECT_EQ(read_destination(1).dest_debut, 1.23456);
}

TEST_F(RecordReadingTest, GivesTheVolumeAsAttenuationAndInPercent) {
    put_list({record_of("a", "1", 80)});
    const DestinationRecord record = read_destination(1);
    EXPECT_EQ(record.dest_volume, -800);
    EXPECT_EQ(record.dest_volume_pourcent, 80);
}

TEST_F(RecordReadingTest, PassesVolumeFiveToThePlayer) {
    put_list({record_of("a", "1", 5)});
    EXPECT_EQ(read_destination(1).dest_volume, 5);
}

TEST_F(RecordReadingTest, LeavesAVolumeAbove100Alone) {
    put_list({record_of("a", "1", 150)});
    EXPECT_EQ(read_destination(1).dest_volume, 150);
}

TEST_F(RecordReadingTest, NamesTheFileBehindTheLastBackslash) {
    put_list({record_of("C:\\Musique\\titre.mp3")});
    EXPECT_EQ(read_destination(1).dest_nom_fichier, "titre.mp3");
}

TEST_F(RecordReadingTest, TrimsTheGenre) {
    put_list({record_of("a", "1", 100, 0, " Jazz ")});
    EXPECT_EQ(read_destination(1).dest_genre, "Jazz");
}

TEST_F(RecordReadingTest, OfADraggedRowTakesGenreEndAndDuration) {
    put_list({record_of("a", " 1E2 ", 100, 0, " Jazz ", "X")});
    const DraggedRecord record = read_dragged(1);
    EXPECT_EQ(record.drop_genre, "Jazz");
    EXPECT_EQ(record.drop_fin, "1e2");
    EXPECT_EQ(record.drop_duree, "X       ");
}

TEST_F(RecordReadingTest, ForADeckTakesGenreStartAndDuration) {
    put_list({record_of("a", "1", 100, 1.23456, " Jazz ", "X")});
    const DestinationRecord record = read_for_deck(1);
    EXPECT_EQ(record.dest_genre, "Jazz");
    EXPECT_EQ(record.dest_debut, 1.23456);
    EXPECT_EQ(record.dest_duree, "X       ");
}

TEST_F(RecordReadingTest, BehindTheEndLeavesTheRecordOfTheReadBefore) {
    put_list({record_of("C:\\a.mp3")});
    EXPECT_EQ(read_destination(2, read_destination(1)).dest_chemin, "C:\\a.mp3");
}

TEST_F(RecordReadingTest, OfAnUnreadableDiskSaysNothing) {
    put_list({record_of("C:\\a.mp3")});
    machine.disk.fail_read_at("C:\\Sonarelle\\matin.dfm", 10);
    read_destination(1);
    EXPECT_TRUE(machine.dialogs.asked().empty());
}

TEST_F(RecordReadingTest, ResolvesARelativeNameInTheProgramFolder) {
    put_list({record_of("C:\\a.mp3")});
    machine.disk.put_folder("C:\\Ailleurs");
    machine.disk.ChDir("C:\\Ailleurs");
    EXPECT_EQ(read_destination(1).dest_chemin, "C:\\a.mp3");
}

TEST_F(RecordReadingTest, PlaysVolumeZeroAtMinus4000) {
    put_list({record_of("a", "1", 0)});
    machine.dialogs.expect_window("err_form");
    EXPECT_EQ(read_destination(1).dest_volume, -4000);
}

TEST_F(RecordReadingTest, WarnsOnceOfVolumeZero) {
    put_list({record_of("a", "1", 0), record_of("b", "1", 0)});
    machine.dialogs.expect_window("err_form");
    read_destination(1);
    read_destination(2);
    EXPECT_EQ(machine.dialogs.asked().size(), 1U);
}

TEST_F(RecordReadingTest, SaysInTheWarningWhatToDo) {
    put_list({record_of("a", "1", 0)});
    machine.dialogs.expect_window("err_form");
    read_destination(1);
    EXPECT_EQ(station.warning_window.lines.caption.get(),
              "le niveau son est nul\rvous devez si vous utilisez des listes\r\n\r\n"
              "créés avec une version anterieure de Sonarelle\r"
              "Mettez a jour vos listes (voir menu clic droit)\r"
              "- Mettre a jour les infos de la liste -");
}

TEST_F(RecordReadingTest, HeadsTheWarningAsOneWhateverTheWindowShowedBefore) {
    put_list({record_of("a", "1", 0)});
    station.warning_window.info.click();
    std::string told;
    station.notices.on_warning = [&](const std::string& lines) { told = lines; };
    machine.dialogs.expect_window("err_form");
    read_destination(1);
    EXPECT_EQ(station.warning_window.caption.get(), "ATTENTION ERREUR");
    EXPECT_EQ(told, station.warning_window.lines.caption.get());
}

TEST_F(RecordReadingTest, SetsTheSlidersToFullWithTheWarningWhileADeckIsMain) {
    put_list({record_of("a", "1", 0)});
    station.chain.lecteur_en_cours = 2;
    for (DeckControls& deck : station.main_window.decks)
        deck.slider.set_value(7);
    machine.dialogs.expect_window("err_form");
    read_destination(1);
    for (DeckControls& deck : station.main_window.decks)
        EXPECT_EQ(deck.slider.value(), 0);
}

TEST_F(RecordReadingTest, LeavesTheSlidersAloneWithTheWarningWithoutAMainDeck) {
    put_list({record_of("a", "1", 0)});
    station.main_window.deck(1).slider.set_value(7);
    machine.dialogs.expect_window("err_form");
    read_destination(1);
    EXPECT_EQ(station.main_window.deck(1).slider.value(), 7);
}

TEST_F(RecordReadingTest, DoesNotWaitForTheOperatorInsideATick) {
    put_list({record_of("a", "1", 0)});
    Timer tick{"Timer1", 1, machine.scheduler};
    tick.on_tick = [this] { read_destination(1); };
    tick.set_interval(1000);
    tick.enable();
    machine.run_for(seconds(1));
    EXPECT_TRUE(station.warning_window.visible);
    EXPECT_TRUE(machine.dialogs.asked().empty());
}

TEST_F(RecordReadingTest, OfADraggedRowRoundsTheStartToTwoDecimals) {
    put_list({record_of("a", "1", 100, 1.236)});
    EXPECT_EQ(read_dragged(1).drop_debut, 1.24);
}

TEST_F(RecordReadingTest, OfADraggedRowKeepsThePercent) {
    put_list({record_of("a", "1", 80)});
    EXPECT_EQ(read_dragged(1).drop_volume, 80);
}

TEST_F(RecordReadingTest, OfADraggedRowGivesNoWarning) {
    put_list({record_of("a", "1", 0)});
    read_dragged(1);
    EXPECT_TRUE(machine.dialogs.asked().empty());
}

TEST_F(RecordReadingTest, ForADeckGivesTheEndInWholeSecondsHalvesToEven) {
    put_list({record_of("a", "200.50"), record_of("b", "201,5")});
    EXPECT_EQ(read_for_deck(1).dest_fin, "200");
    EXPECT_EQ(read_for_deck(2).dest_fin, "202");
}

TEST_F(RecordReadingTest, ForADeckFailsOnAnEndBeyond16Bits) {
    put_list({record_of("C:\\a.mp3", "40000")});
    const DestinationRecord record = read_for_deck(1, {.dest_fin = "avant"});
    EXPECT_EQ(record.dest_chemin, "C:\\a.mp3");
    EXPECT_EQ(record.dest_fin, "avant");
}

TEST_F(RecordReadingTest, ForADeckKeepsThePercent) {
    put_list({record_of("a", "1", 80)});
    EXPECT_EQ(read_for_deck(1).dest_volume, 80);
}

TEST_F(RecordReadingTest, ForADeckReadsRecordOneForIndexZero) {
    put_list({record_of("C:\\a.mp3")});
    EXPECT_EQ(read_for_deck(0).dest_chemin, "C:\\a.mp3");
}

} // namespace sonarelle
