// The station stays on the air behind a box, for as long as the operator leaves it open.
#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using Kind = OnAirEvent::Kind;

constexpr Frames ten_minutes = seconds(600);

class OpenBox : public ChainFixture {
protected:
    void play_list_for(int seconds_played) {
        open_tracks({250, 250, 250, 250});
        start_list();
        machine.run_for(seconds(seconds_played));
    }
    /// The rows and the air are what they are without a box: mix points at 244, 488 and 732.
    void expect_two_mix_points_passed(int asked_at) {
        EXPECT_EQ(machine.time.now(), seconds(asked_at) + ten_minutes);
        EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {244, 2}, {488, 3}}));
        EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{track(3)});
        machine.run_for(seconds(732) - machine.time.now());
        EXPECT_EQ(rows_started(), (std::vector<int>{1, 2, 3, 4}));
    }
};

} // namespace

TEST_F(OpenBox, OfARefusedZapStopsNothing) {
    play_list_for(10);
    machine.dialogs.expect_box("secondes minimun", Answer::ok, ten_minutes);
    station.main_window.key_press(U'z');
    expect_two_mix_points_passed(10);
}

TEST_F(OpenBox, OfAnInformationStopsNothing) {
    play_list_for(10);
    machine.dialogs.expect_box("les trois lecteurs doivent etre chargés", Answer::ok, ten_minutes);
    station.main_window.a_mode_manuel.click();
    expect_two_mix_points_passed(10);
}

TEST_F(OpenBox, OfAKeptVolumeStopsNothing) {
    play_list_for(10);
    machine.dialogs.expect_box("Sauvegarde", Answer::ok, ten_minutes);
    controls(1).keep_volume.click();
    expect_two_mix_points_passed(10);
}

TEST_F(OpenBox, OfAPurgedJournalStopsNothing) {
    station.main_window.Active_journal.click();
    play_list_for(10);
    machine.dialogs.expect_box("Ok journal supprimé", Answer::ok, ten_minutes);
    station.main_window.A_purger_journal.click();
    expect_two_mix_points_passed(10);
}

TEST_F(OpenBox, OfAnInvalidOverlapStopsNothing) {
    play_list_for(10);
    station.main_window.overlap.set_text("six");
    machine.dialogs.expect_box(Answer::ok, ten_minutes);
    station.main_window.overlap_more.click();
    expect_two_mix_points_passed(10);
}

TEST_F(OpenBox, OfTheFilesOfAnIdleDeckLetsTheChainTakeThatDeck) {
    play_list_for(10);
    machine.dialogs.expect_cancel(ten_minutes);
    controls(2).open.click();
    expect_two_mix_points_passed(10);
}

} // namespace sonarelle
