#include <gmock/gmock.h>

#include "accessories/properties_fixture.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;

class TrackPropertiesTest : public PropertiesFixture {};

} // namespace

TEST_F(TrackPropertiesTest, ShowTheSelectedRow) {
    open();
    EXPECT_TRUE(window.visible);
    EXPECT_EQ(window.file_name.caption.get(), "été.mp3");
    EXPECT_THAT(fields(), ElementsAre("0.1", "180.00", "Rock", "80", "00:03:20"));
}

TEST_F(TrackPropertiesTest, ShowWhatTheFileHoldsNotTheCells) {
    rows().set_sub_item(2, 3, "Jazz");
    open();
    EXPECT_EQ(window.genre.text(), "Rock");
}

TEST_F(TrackPropertiesTest, WarnOfANullVolumeOnceTheyAreShown) {
    open_list("C:\\Sonarelle\\nul.dfm", {record_of(music, "180.00", 0)});
    machine.dialogs.expect_window("err_form");
    open(3);
    EXPECT_EQ(window.file_name.caption.get(), "été.mp3");
    EXPECT_EQ(window.volume.text(), "0");
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
    EXPECT_EQ(window.file_name.caption.get(), "autre.mp3");
}

TEST_F(TrackPropertiesTest, ShowAVolumeThatNoTableRowHasAsItIs) {
    open_list("C:\\Sonarelle\\seul.dfm", {record_of(music, "180.00", 5)});
    open(3);
    EXPECT_EQ(window.volume.text(), "5");
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

TEST_F(TrackPropertiesTest, OfferNeitherStopNorEndOnAnotherRow) {
    open_and_play();
    window.mark_start.click();
    open(1);
    EXPECT_FALSE(window.stop.visible);
    EXPECT_FALSE(window.mark_end.visible);
    EXPECT_EQ(window.bar.caption.get(), "");
}

TEST_F(TrackPropertiesTest, PlayFromTheBeginningAndFollow) {
    open_and_play();
    EXPECT_THAT(machine.media.on_air(), ElementsAre(std::string{music}));
    EXPECT_EQ(window.bar.maximum, 200);
    run_for(3);
    EXPECT_EQ(window.bar.value, 3);
    EXPECT_EQ(window.start.text(), "3.00");
    EXPECT_EQ(window.end.text(), "180.00");
}

TEST_F(TrackPropertiesTest, PlayOnANewGraphEachTime) {
    open_and_play();
    run_for(10);
    window.play.click();
    EXPECT_EQ(machine.media.graphs(), 1U);
    run_for(1);
    EXPECT_EQ(window.start.text(), "1.00");
}

TEST_F(TrackPropertiesTest, LeaveAMissingFileWithoutAWord) {
    machine.disk.Kill(music);
    open_and_play();
    EXPECT_FALSE(window.progress_timer.enabled());
    EXPECT_FALSE(window.stop.visible);
}

TEST_F(TrackPropertiesTest, MarkNothingOnAFileThatCannotBePlayed) {
    machine.disk.Kill(music);
    open_and_play();
    window.mark_start.click();
    run_for(2);
    EXPECT_EQ(window.start.text(), "0.1");
}

TEST_F(TrackPropertiesTest, MarkTheStartAtTheFirstPressAndGoOnAtTheNext) {
    open_and_play();
    machine.run_for(milliseconds(12340));
    window.mark_start.click();
    EXPECT_EQ(window.start.text(), "12.34");
    EXPECT_TRUE(machine.media.on_air().empty());
    run_for(5);
    EXPECT_EQ(window.start.text(), "12.34");

    window.mark_start.click();
    EXPECT_EQ(machine.media.on_air().size(), 1U);
    run_for(1);
    EXPECT_EQ(window.start.text(), "13.34");
}

TEST_F(TrackPropertiesTest, MarkTheEndAndLeaveTheStart) {
    open_and_play();
    run_for(10);
    window.mark_start.click();
    window.mark_end.click();
    EXPECT_EQ(window.end.text(), "10.00") << "the graph was paused: it goes on, and the place is written at once";
    machine.run_for(milliseconds(5500));
    EXPECT_EQ(window.end.text(), "15.00");
    window.mark_end.click();
    EXPECT_EQ(window.end.text(), "15.50");
    EXPECT_EQ(window.start.text(), "10.00");
    EXPECT_TRUE(machine.media.on_air().empty());
}

TEST_F(TrackPropertiesTest, PausedAtTheStartLeaveTheEndWhereItWasMarked) {
    open_and_play();
    run_for(10);
    window.mark_start.click();
    window.mark_end.click();
    run_for(2);
    window.mark_start.click();
    window.start_forward.click();
    run_for(1);
    EXPECT_EQ(window.start.text(), "12.10");
    EXPECT_EQ(window.end.text(), "12.00");
}

TEST_F(TrackPropertiesTest, PausedAtTheEndLeaveTheStartWhereItWasMarked) {
    open_and_play();
    run_for(10);
    window.mark_start.click();
    window.mark_start.click();
    run_for(2);
    window.mark_end.click();
    window.end_forward.click();
    run_for(1);
    EXPECT_EQ(window.start.text(), "12.00");
    EXPECT_EQ(window.end.text(), "12.10");
}

TEST_F(TrackPropertiesTest, StopPutsTheBarBack) {
    open_and_play();
    run_for(3);
    window.stop.click();
    EXPECT_EQ(window.bar.value, 0);
    EXPECT_TRUE(machine.media.on_air().empty());
    run_for(2);
    EXPECT_EQ(window.start.text(), "3.00");
    EXPECT_EQ(window.bar.value, 0);
}

TEST_F(TrackPropertiesTest, StepTheStartByATenth) {
    open_and_play();
    run_for(10);
    window.mark_start.click();
    window.start_back.click();
    EXPECT_EQ(window.start.text(), "9.90");
    window.start_forward.click();
    window.start_forward.click();
    EXPECT_EQ(window.start.text(), "10.10");
    EXPECT_EQ(window.end.text(), "180.00");
}

TEST_F(TrackPropertiesTest, StepTheEndByATenth) {
    open_and_play();
    run_for(10);
    window.mark_start.click();
    window.end_forward.click();
    EXPECT_EQ(window.end.text(), "10.10");
    window.end_back.click();
    window.end_back.click();
    EXPECT_EQ(window.end.text(), "9.90");
    EXPECT_EQ(window.start.text(), "10.00");
}

TEST_F(TrackPropertiesTest, StepNeitherBackWhileTheStartIsAtZero) {
    open_and_play();
    run_for(10);
    window.mark_start.click();
    window.start.set_text("0.00");
    machine.media.clear_log();
    window.start_back.click();
    window.end_back.click();
    EXPECT_TRUE(machine.media.log().empty());
    EXPECT_EQ(window.start.text(), "0.00");
    EXPECT_EQ(window.end.text(), "180.00");
}

TEST_F(TrackPropertiesTest, StepForwardFromZero) {
    open_and_play();
    window.mark_start.click();
    window.start_forward.click();
    EXPECT_EQ(window.start.text(), "0.10");
}

TEST_F(TrackPropertiesTest, StepNowhereFromAStartThatIsNoNumber) {
    open_and_play();
    window.mark_start.click();
    window.start.set_text("début");
    window.start_back.click();
    EXPECT_EQ(window.start.text(), "début");
}

TEST_F(TrackPropertiesTest, DoNothingBeforeTheFirstPlay) {
    open();
    for (Label* action : {&window.mark_start, &window.mark_end, &window.stop, &window.start_back, &window.start_forward,
                          &window.end_back, &window.end_forward}) {
        action->visible = true;
        action->click();
    }
    window.bar.click_at(100);
    EXPECT_TRUE(machine.media.log().empty());
    EXPECT_THAT(fields(), ElementsAre("0.1", "180.00", "Rock", "80", "00:03:20"));
}

TEST_F(TrackPropertiesTest, TellThePercentageUnderThePointer) {
    open_and_play();
    window.bar.move_over(100);
    EXPECT_EQ(window.bar.hint.get(), "lecteur chargé (F8) avec : " + std::string{music});
    EXPECT_EQ(window.bar.caption.get(), "45%");
}

TEST_F(TrackPropertiesTest, TellNoPercentageBeforeTheFirstPlay) {
    open();
    window.bar.move_over(100);
    EXPECT_EQ(window.bar.caption.get(), "");
}

TEST_F(TrackPropertiesTest, GoToThePercentageThatIsClicked) {
    open_and_play();
    window.bar.click_at(100);
    EXPECT_EQ(last_command().action, MediaAction::position);
    EXPECT_DOUBLE_EQ(last_command().value, 90);
    run_for(1);
    EXPECT_EQ(window.start.text(), "91.00");
}

TEST_F(TrackPropertiesTest, GoToBothEndsOfTheBar) {
    open_and_play();
    window.bar.click_at(Propriete::bar_units);
    EXPECT_DOUBLE_EQ(last_command().value, 200);
    window.bar.click_at(0);
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

TEST_F(TrackPropertiesTest, OpenWithTheStationsColourOnEveryLabel) {
    station.settings.coul_label = 0x123456;
    open_and_play();
    window.close.click();
    open();
    for (const Label* action : window.actions())
        EXPECT_EQ(action->fore_colour, 0x123456) << action->name();
}

TEST_F(TrackPropertiesTest, ExplainTheLabelsThatNeedIt) {
    std::vector<std::string> hints;
    for (const Label* action : window.actions())
        hints.push_back(action->caption.get() + ": " + action->hint.get());
    EXPECT_THAT(hints, ElementsAre("Lecture: ", "Début: Sélection Début / pause", "Fin: Sélection Fin / pause",
                                   "Stop: ", "<: Reculer", ">: Avancer", "<: Reculer", ">: Avancer"));
}

TEST_F(TrackPropertiesTest, CloseStopsAndHides) {
    open_and_play();
    run_for(3);
    window.close.click();
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
    window.close.click();
    EXPECT_EQ(station.list_window.list_status.caption.get(), " Pas de Modification ");
}

TEST_F(TrackPropertiesTest, CloseAfterASaveTellsNothing) {
    open();
    window.save.click();
    const std::string before = station.list_window.list_status.caption;
    window.close.click();
    EXPECT_EQ(station.list_window.list_status.caption.get(), before);
}

TEST_F(TrackPropertiesTest, CloseTellsThatNothingWasChangedBehindAnEarlierSave) {
    open();
    window.save.click();
    window.close.click();
    open();
    window.close.click();
    EXPECT_EQ(station.list_window.list_status.caption.get(), " Pas de Modification ");
}

TEST_F(TrackPropertiesTest, OpenOnAnotherRowStopsTheOneThatPlays) {
    open_and_play();
    run_for(3);
    open(1);
    run_for(2);
    EXPECT_TRUE(machine.media.on_air().empty());
    EXPECT_EQ(window.start.text(), "0.1");
}

TEST_F(TrackPropertiesTest, MarkNothingOnTheFileOfTheRowBefore) {
    open_and_play();
    run_for(3);
    open(1);
    window.mark_start.click();
    window.bar.click_at(100);
    run_for(2);
    EXPECT_TRUE(machine.media.on_air().empty());
    EXPECT_EQ(window.start.text(), "0.1");
    EXPECT_FALSE(window.mark_end.visible);
}

} // namespace sonarelle
