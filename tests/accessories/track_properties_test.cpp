#include <gmock/gmock.h>

#include "support/station_bench.h"

namespace sonarelle {

namespace {

constexpr std::string_view music = "C:\\Musique\\été.mp3";

class TrackPropertiesTest : public StationBench {
protected:
    TrackPropertiesTest() {
        machine.add_track(music, 200);
        open_list("C:\\Sonarelle\\matin.dfm", {record_of("C:\\Musique\\autre.mp3"), record_of(music, "180.00", 80)});
    }

    /// Opens the properties of a row from the list's menu.
    void open(int row = 2) {
        rows().select(row);
        station.list_window.a_modif.click();
    }
    void open_and_play() {
        open();
        window.play.click();
    }
    void run_for(int seconds) { machine.run_for(milliseconds(1000 * seconds)); }
    [[nodiscard]] MediaCommand last_command() const { return machine.media.log().back(); }
    [[nodiscard]] enreg_liste record(std::string_view file, std::size_t number) {
        return record_in(machine.disk.bytes(file), number);
    }
    [[nodiscard]] std::vector<std::string> fields() const {
        return {window.Text1.text(), window.Text2.text(), window.Text3.text(), window.Text4.text(),
                window.Text5.text()};
    }

    Propriete& window = station.properties_window;
};

using testing::ElementsAre;

} // namespace

TEST_F(TrackPropertiesTest, ShowTheSelectedRow) {
    open();
    EXPECT_TRUE(window.visible);
    EXPECT_EQ(window.Label2.caption.get(), "été.mp3");
    EXPECT_THAT(fields(), ElementsAre("0.1", "180.00", "Rock", "80", "00:03:20"));
    EXPECT_EQ(station.list.nom_fichier_maj, music);
}

TEST_F(TrackPropertiesTest, ShowWhatTheFileHoldsNotTheCells) {
    rows().set_sub_item(2, 3, "Jazz");
    open();
    EXPECT_EQ(window.Text3.text(), "Rock");
}

TEST_F(TrackPropertiesTest, WarnOfANullVolumeOnceTheyAreShown) {
    open_list("C:\\Sonarelle\\nul.dfm", {record_of(music, "180.00", 0)});
    machine.dialogs.expect_window("err_form", [this] { station.record_reading.read_record(1); });
    open(3);
    EXPECT_EQ(window.Label2.caption.get(), "été.mp3");
    EXPECT_EQ(window.Text4.text(), "0");
}

TEST_F(TrackPropertiesTest, StayClosedWhileTheListIsEmpty) {
    rows().clear();
    station.list_window.a_modif.click();
    EXPECT_FALSE(window.visible);
}

TEST_F(TrackPropertiesTest, StayClosedForAListOfTheOldForm) {
    machine.disk.put_file("C:\\Sonarelle\\vieux.rfm", std::string(2 * enreg_rfm::size, ' '));
    station.list.nom_sauvegarde.clear();
    machine.dialogs.expect_open("C:\\Sonarelle\\vieux.rfm");
    machine.dialogs.expect_cancel();
    station.list_window.A_Copen_rfm.click();
    machine.dialogs.expect_box("Sauvegarder dans format .dfm avant traitement !", Answer::ok);
    open(3);
    EXPECT_FALSE(window.visible);
}

TEST_F(TrackPropertiesTest, ShowTheFirstRowWhenNoneIsSelected) {
    station.list_window.a_modif.click();
    EXPECT_EQ(window.Label2.caption.get(), "autre.mp3");
}

TEST_F(TrackPropertiesTest, ShowAVolumeThatNoTableRowHasAsItIs) {
    open_list("C:\\Sonarelle\\seul.dfm", {record_of(music, "180.00", 5)});
    open(3);
    EXPECT_EQ(window.Text4.text(), "5");
}

TEST_F(TrackPropertiesTest, OfferStopAndEndOnceTheyHaveAMeaning) {
    open();
    EXPECT_FALSE(window.stop.visible);
    EXPECT_FALSE(window.mark_end.visible);
    window.play.click();
    EXPECT_TRUE(window.stop.visible);
    EXPECT_FALSE(window.mark_end.visible);
    window.mark_start.click();
    EXPECT_TRUE(window.mark_end.visible);
}

TEST_F(TrackPropertiesTest, PlayFromTheBeginningAndFollow) {
    open_and_play();
    EXPECT_THAT(machine.media.on_air(), ElementsAre(std::string{music}));
    EXPECT_EQ(window.ProgressBar1.maximum, 200);
    run_for(3);
    EXPECT_EQ(window.ProgressBar1.value, 3);
    EXPECT_EQ(window.Text1.text(), "3.00");
    EXPECT_EQ(window.Text2.text(), "180.00");
}

TEST_F(TrackPropertiesTest, PlayOnANewGraphEachTime) {
    open_and_play();
    run_for(10);
    window.play.click();
    EXPECT_EQ(machine.media.graphs(), 1U);
    run_for(1);
    EXPECT_EQ(window.Text1.text(), "1.00");
}

TEST_F(TrackPropertiesTest, LeaveAMissingFileWithoutAWord) {
    machine.disk.Kill(music);
    open_and_play();
    EXPECT_FALSE(window.Timer1.enabled());
    EXPECT_FALSE(window.stop.visible);
}

TEST_F(TrackPropertiesTest, MarkNothingOnAFileThatCannotBePlayed) {
    machine.disk.Kill(music);
    open_and_play();
    window.mark_start.click();
    run_for(2);
    EXPECT_EQ(window.Text1.text(), "0.1");
}

TEST_F(TrackPropertiesTest, MarkTheStartAtTheFirstPressAndGoOnAtTheNext) {
    open_and_play();
    machine.run_for(milliseconds(12340));
    window.mark_start.click();
    EXPECT_EQ(window.Text1.text(), "12.34");
    EXPECT_TRUE(machine.media.on_air().empty());
    run_for(5);
    EXPECT_EQ(window.Text1.text(), "12.34");

    window.mark_start.click();
    EXPECT_EQ(machine.media.on_air().size(), 1U);
    run_for(1);
    EXPECT_EQ(window.Text1.text(), "13.34");
}

TEST_F(TrackPropertiesTest, MarkTheEndAndLeaveTheStart) {
    open_and_play();
    run_for(10);
    window.mark_start.click();
    window.mark_end.click();
    EXPECT_EQ(window.Text2.text(), "10.00") << "the graph was paused: it goes on, and the place is written at once";
    machine.run_for(milliseconds(5500));
    EXPECT_EQ(window.Text2.text(), "15.00");
    window.mark_end.click();
    EXPECT_EQ(window.Text2.text(), "15.50");
    EXPECT_EQ(window.Text1.text(), "10.00");
    EXPECT_TRUE(machine.media.on_air().empty());
}

TEST_F(TrackPropertiesTest, StopPutsTheBarBack) {
    open_and_play();
    run_for(3);
    window.stop.click();
    EXPECT_EQ(window.ProgressBar1.value, 0);
    EXPECT_TRUE(machine.media.on_air().empty());
    run_for(2);
    EXPECT_EQ(window.Text1.text(), "3.00");
    EXPECT_EQ(window.ProgressBar1.value, 0);
}

TEST_F(TrackPropertiesTest, StepTheStartByATenth) {
    open_and_play();
    run_for(10);
    window.mark_start.click();
    window.start_back.click();
    EXPECT_EQ(window.Text1.text(), "9.90");
    window.start_forward.click();
    window.start_forward.click();
    EXPECT_EQ(window.Text1.text(), "10.10");
    EXPECT_EQ(window.Text2.text(), "180.00");
}

TEST_F(TrackPropertiesTest, StepTheEndByATenth) {
    open_and_play();
    run_for(10);
    window.mark_start.click();
    window.end_forward.click();
    EXPECT_EQ(window.Text2.text(), "10.10");
    window.end_back.click();
    window.end_back.click();
    EXPECT_EQ(window.Text2.text(), "9.90");
    EXPECT_EQ(window.Text1.text(), "10.00");
}

TEST_F(TrackPropertiesTest, StepNeitherBackWhileTheStartIsAtZero) {
    open_and_play();
    run_for(10);
    window.mark_start.click();
    window.Text1.set_text("0.00");
    machine.media.clear_log();
    window.start_back.click();
    window.end_back.click();
    EXPECT_TRUE(machine.media.log().empty());
    EXPECT_EQ(window.Text1.text(), "0.00");
    EXPECT_EQ(window.Text2.text(), "180.00");
}

TEST_F(TrackPropertiesTest, StepForwardFromZero) {
    open_and_play();
    window.mark_start.click();
    window.start_forward.click();
    EXPECT_EQ(window.Text1.text(), "0.10");
}

TEST_F(TrackPropertiesTest, StepNowhereFromAStartThatIsNoNumber) {
    open_and_play();
    window.mark_start.click();
    window.Text1.set_text("début");
    window.start_back.click();
    EXPECT_EQ(window.Text1.text(), "début");
}

TEST_F(TrackPropertiesTest, DoNothingBeforeTheFirstPlay) {
    open();
    for (Label* action : {&window.mark_start, &window.mark_end, &window.stop, &window.start_back, &window.start_forward,
                          &window.end_back, &window.end_forward}) {
        action->visible = true;
        action->click();
    }
    window.ProgressBar1.click_at(100);
    EXPECT_TRUE(machine.media.log().empty());
    EXPECT_THAT(fields(), ElementsAre("0.1", "180.00", "Rock", "80", "00:03:20"));
}

TEST_F(TrackPropertiesTest, TellThePercentageUnderThePointer) {
    open_and_play();
    window.ProgressBar1.move_over(100);
    EXPECT_EQ(window.ProgressBar1.hint.get(), "lecteur chargé (F8) avec : " + std::string{music});
    EXPECT_EQ(window.ProgressBar1.caption.get(), "45%");
}

TEST_F(TrackPropertiesTest, TellNoPercentageBeforeTheFirstPlay) {
    open();
    window.ProgressBar1.move_over(100);
    EXPECT_EQ(window.ProgressBar1.caption.get(), "");
}

TEST_F(TrackPropertiesTest, GoToThePercentageThatIsClicked) {
    open_and_play();
    window.ProgressBar1.click_at(100);
    EXPECT_EQ(last_command().action, MediaAction::position);
    EXPECT_DOUBLE_EQ(last_command().value, 90);
    run_for(1);
    EXPECT_EQ(window.Text1.text(), "91.00");
}

TEST_F(TrackPropertiesTest, GoToBothEndsOfTheBar) {
    open_and_play();
    window.ProgressBar1.click_at(Propriete::bar_units);
    EXPECT_DOUBLE_EQ(last_command().value, 200);
    window.ProgressBar1.click_at(0);
    EXPECT_DOUBLE_EQ(last_command().value, 0);
}

TEST_F(TrackPropertiesTest, ColourTheLabelUnderThePointer) {
    station.settings.coul_label = 0x123456;
    open();
    window.play.mouse_move();
    EXPECT_EQ(window.play.fore_colour, 0x80FF80);
    window.play.click();
    EXPECT_EQ(static_cast<std::uint32_t>(window.play.fore_colour.get()), 0x80000012U);
    window.mouse_move();
    EXPECT_EQ(window.play.fore_colour, 0x123456);
}

TEST_F(TrackPropertiesTest, ExplainTheLabelsThatNeedIt) {
    std::vector<std::string> hints;
    for (const Label* action : window.actions())
        hints.push_back(action->caption.get() + ": " + action->hint.get());
    EXPECT_THAT(hints, ElementsAre("Lecture: ", "Début: Sélection Début / pause", "Fin: Sélection Fin / pause",
                                   "Stop: ", "<: Reculer", ">: Avancer", "<: Reculer", ">: Avancer"));
}

TEST_F(TrackPropertiesTest, SaveWhatWasMarkedByEarAndShowItInTheRow) {
    open_and_play();
    machine.run_for(milliseconds(12340));
    window.mark_start.click();
    window.mark_end.click();
    machine.run_for(milliseconds(20000));
    window.mark_end.click();
    window.Text3.set_text("Chanson");
    window.Text4.set_text("95");
    window.AnyButton2.click();

    EXPECT_THAT(rows().row(2), ElementsAre(std::string{music}, "12.34", "32.34", "Chanson", "95", "00:03:20"));
    EXPECT_EQ(bytes_of(record("C:\\Sonarelle\\matin.dfm", 2)),
              bytes_of(record_of(music, "32.34", 95, 12.34, "Chanson")));
}

TEST_F(TrackPropertiesTest, SaveNoOtherRow) {
    open();
    window.Text2.set_text("100.00");
    window.AnyButton2.click();
    EXPECT_EQ(bytes_of(record("C:\\Sonarelle\\matin.dfm", 1)), bytes_of(record_of("C:\\Musique\\autre.mp3")));
    EXPECT_EQ(machine.disk.bytes("C:\\Sonarelle\\matin.dfm").size(), 2 * enreg_liste::size);
    EXPECT_EQ(rows().count(), 2);
}

TEST_F(TrackPropertiesTest, SaveNothingWhileAnActionGoesOverTheList) {
    machine.add_track("C:\\Musique\\autre.mp3", 200);
    open();
    window.Text3.set_text("Chanson");
    machine.disk.take("C:\\Musique", seconds(1));
    std::string genre;
    machine.time.at(machine.time.now() + milliseconds(500), [&] {
        window.AnyButton2.click();
        genre = record("C:\\Sonarelle\\matin.dfm", 2).trimmed_genre();
    });
    machine.dialogs.expect_box("Sauvegarder la liste ?", Answer::no);
    station.list_window.a_mettre_a_jour_liste.click();
    EXPECT_EQ(genre, "Rock");
}

TEST_F(TrackPropertiesTest, SaveRefillsTheRowsFromTheFile) {
    open();
    rows().set_text(1, "C:\\jamais sauvé.mp3");
    window.AnyButton2.click();
    EXPECT_EQ(rows().text(1), "C:\\Musique\\autre.mp3");
}

TEST_F(TrackPropertiesTest, SavedRowGoesIntoTheDefaultListToo) {
    open();
    window.Text2.set_text("100.00");
    window.AnyButton2.click();
    EXPECT_EQ(station.list.fichier_liste, "liste.dfm");
    EXPECT_EQ(default_list_bytes(), machine.disk.bytes("C:\\Sonarelle\\matin.dfm"));
}

TEST_F(TrackPropertiesTest, SaveItsOwnRowAlthoughTheChainReadsAnother) {
    open();
    station.list.index_destinataire = 1;
    station.record_reading.lire_enreg_destinataire();
    station.list.nom_fichier_maj = "C:\\Musique\\mesuré.mp3";
    window.Text2.set_text("100.00");
    window.AnyButton2.click();
    EXPECT_EQ(rows().sub_item(1, 2), "200.00");
    EXPECT_EQ(rows().sub_item(2, 2), "100.00");
    EXPECT_EQ(rows().text(2), music);
}

TEST_F(TrackPropertiesTest, SaveNoRowThatIsNoLongerThere) {
    open();
    const std::string others = bytes_of({record_of("C:\\a.mp3"), record_of("C:\\b.mp3")});
    machine.disk.put_file("C:\\Sonarelle\\matin.dfm", others);
    machine.dialogs.expect_box(std::string{music}, Answer::ok);
    window.AnyButton2.click();
    EXPECT_EQ(machine.disk.bytes("C:\\Sonarelle\\matin.dfm"), others);
}

TEST_F(TrackPropertiesTest, SaveNeedsAList) {
    open();
    station.list.fichier_liste.clear();
    machine.dialogs.expect_box("Pas de nom de fichier", Answer::ok);
    window.AnyButton2.click();
}

TEST_F(TrackPropertiesTest, SaveIsRefusedWhileTheListIsKeptAsItIs) {
    station.list_window.a_Ne_pas_Sauve.click();
    open();
    window.Text2.set_text("100.00");
    const std::string before = machine.disk.bytes("C:\\Sonarelle\\matin.dfm");
    machine.dialogs.expect_box(
        "Traitement impossible avec l'option\nNe pas sauver les modifications dans le fichier par défaut\n"
        "Sauvegarder cette liste",
        Answer::ok);
    window.AnyButton2.click();
    EXPECT_EQ(machine.dialogs.last().icon, Icon::information);
    EXPECT_EQ(machine.disk.bytes("C:\\Sonarelle\\matin.dfm"), before);
}

TEST_F(TrackPropertiesTest, SaveTellsAFieldThatIsNoNumber) {
    open();
    window.Text1.set_text("début");
    machine.dialogs.expect_box("début", Answer::ok);
    window.AnyButton2.click();
    EXPECT_EQ(bytes_of(record("C:\\Sonarelle\\matin.dfm", 2)), bytes_of(record_of(music, "180.00", 80)));
}

TEST_F(TrackPropertiesTest, SaveOnAFullDiskLeavesTheListAndSaysSo) {
    open();
    const std::string before = machine.disk.bytes("C:\\Sonarelle\\matin.dfm");
    window.Text2.set_text("100.00");
    machine.disk.set_capacity(machine.disk.used() + 100);
    machine.dialogs.expect_box(Answer::ok);
    window.AnyButton2.click();
    EXPECT_EQ(machine.dialogs.last().icon, Icon::stop);
    EXPECT_EQ(machine.disk.bytes("C:\\Sonarelle\\matin.dfm"), before);
}

TEST_F(TrackPropertiesTest, CloseStopsAndHides) {
    open_and_play();
    run_for(3);
    window.AnyButton1.click();
    EXPECT_FALSE(window.visible);
    EXPECT_TRUE(machine.media.on_air().empty());
    for (const Timer* timer : window.timers())
        EXPECT_FALSE(timer->enabled()) << timer->name();
}

TEST_F(TrackPropertiesTest, CloseWithEscapeAndWithTheCloseBox) {
    open();
    window.key_press(27);
    EXPECT_FALSE(window.visible);
    open();
    window.ask_to_close();
    EXPECT_FALSE(window.visible);
}

TEST_F(TrackPropertiesTest, CloseTellsThatNothingWasChanged) {
    open();
    window.AnyButton1.click();
    EXPECT_EQ(station.list_window.Label1.caption.get(), " Pas de Modification ");
}

TEST_F(TrackPropertiesTest, CloseAfterASaveTellsNothing) {
    open();
    window.AnyButton2.click();
    const std::string before = station.list_window.Label1.caption;
    window.AnyButton1.click();
    EXPECT_EQ(station.list_window.Label1.caption.get(), before);
}

TEST_F(TrackPropertiesTest, OpenOnAnotherRowStopsTheOneThatPlays) {
    open_and_play();
    run_for(3);
    open(1);
    run_for(2);
    EXPECT_TRUE(machine.media.on_air().empty());
    EXPECT_EQ(window.Text1.text(), "0.1");
}

TEST_F(TrackPropertiesTest, MarkNothingOnTheFileOfTheRowBefore) {
    open_and_play();
    run_for(3);
    open(1);
    window.mark_start.click();
    window.ProgressBar1.click_at(100);
    run_for(2);
    EXPECT_TRUE(machine.media.on_air().empty());
    EXPECT_EQ(window.Text1.text(), "0.1");
    EXPECT_FALSE(window.mark_end.visible);
}

} // namespace sonarelle
