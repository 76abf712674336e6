// What an operator's hands do beside the air, and what follows on it.
#include "playlist/list_rows.h"
#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using Kind = OnAirEvent::Kind;
using Starts = std::vector<std::pair<double, int>>;

class AirUnderHands : public ChainFixture {
protected:
    void leave_the_list_dialog() {
        machine.dialogs.expect_cancel();
        station.list_window.A_liste.click();
    }

    /// The operator names another list to save to, and keeps it as it is.
    void refuse_to_save_over(const std::vector<enreg_liste>& records) {
        machine.disk.put_file("C:\\Sonarelle\\autre.dfm", bytes_of(records));
        machine.dialogs.expect_save("C:\\Sonarelle\\autre.dfm");
        machine.dialogs.expect_box("existe", Answer::no);
        station.list_window.A_enreg_sous.click();
    }
};

} // namespace

TEST_F(AirUnderHands, TracksBehindAListDialogThatWasLeftEndWhereTheirRowsSay) {
    open_tracks({100, 100, 40, 100});
    start_list();
    leave_the_list_dialog();
    machine.run_for(seconds(230));
    EXPECT_EQ(times_of(Kind::started), (Starts{{0, 1}, {94, 2}, {188, 3}, {222, 1}}));
}

TEST_F(AirUnderHands, ListStartsAtTheChosenRowBehindAListDialogThatWasLeft) {
    open_tracks({100, 100, 100});
    leave_the_list_dialog();
    rows().select(3);
    start_list();
    EXPECT_EQ(machine.media.on_air(), std::vector{track(3)});
}

TEST_F(AirUnderHands, ListCanBeStartedWhereAnOpenHasCutIt) {
    open_tracks({100, 100, 100});
    start_list();
    machine.run_for(seconds(10));
    machine.dialogs.expect_box("est à l'antenne", Answer::yes);
    machine.dialogs.expect_cancel();
    controls(1).open.click();
    station.list_window.play_list.click();
    EXPECT_EQ(machine.media.on_air(), std::vector{track(1)});
}

TEST_F(AirUnderHands, TracksBehindARefusedSaveEndWhereTheirRowsSay) {
    open_tracks({100, 100, 100});
    start_list();
    refuse_to_save_over({record_of(track(7), "30.00"), record_of(track(8), "30.00"), record_of(track(9), "30.00")});
    machine.run_for(seconds(200));
    EXPECT_EQ(times_of(Kind::started), (Starts{{0, 1}, {94, 2}, {188, 3}}));
}

TEST_F(AirUnderHands, ZapBehindARefusedSaveLeavesTheRowsAsTheyAre) {
    open_tracks({100, 100, 100});
    start_list();
    refuse_to_save_over({record_of(track(1)), record_of(track(9))});
    machine.run_for(seconds(40));
    station.main_window.key_press(U'z');
    EXPECT_EQ(rows().count(), 3);
    EXPECT_EQ(rows().text(2), track(2));
}

TEST_F(AirUnderHands, ZapBehindARefusedSaveShowsTheEndThatItHasWritten) {
    open_tracks({100, 100, 100});
    start_list();
    refuse_to_save_over({record_of(track(1)), record_of(track(9))});
    machine.run_for(seconds(40));
    station.main_window.key_press(U'z');
    EXPECT_EQ(rows().sub_item(1, list_column::end), "40.00");
}

} // namespace sonarelle
