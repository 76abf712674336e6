#include <gmock/gmock.h>

#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using testing::Contains;
using testing::ElementsAre;

class TrackPropertiesOnAir : public ChainFixture {
protected:
    /// Cuts row 3 down to its seconds 20 to 80 by ear, while row 1 is on the air.
    void cut_third_row() {
        Propriete& window = station.properties_window;
        rows().select(3);
        station.list_window.a_modif.click();
        window.play.click();
        machine.run_for(milliseconds(20000));
        window.mark_start.click();
        window.mark_end.click();
        machine.run_for(milliseconds(60000));
        window.mark_end.click();
        window.save.click();
        window.close.click();
    }
};

} // namespace

TEST_F(TrackPropertiesOnAir, RunGoesOnAndPlaysTheRowAsItWasCut) {
    open_tracks({200, 200, 200});
    start_list();
    machine.run_for(milliseconds(50000));
    cut_third_row();
    machine.run_for(milliseconds(600000));

    EXPECT_THAT(rows_started(), Contains(3));
    EXPECT_EQ(rows_started()[1], 2);
    const auto starts = times_of(OnAirEvent::Kind::started);
    ASSERT_GE(starts.size(), 4U);
    EXPECT_DOUBLE_EQ(starts[2].first - starts[1].first, 194) << "row 2 plays to its end less the mix";
    EXPECT_DOUBLE_EQ(starts[3].first - starts[2].first, 54) << "row 3 plays from 20 to 80 less the mix";
}

TEST_F(TrackPropertiesOnAir, LeaveWhatTheNextStartGoesBy) {
    open_tracks({60, 60, 60}, 3.0);
    rows().set_sub_item(3, 1, "9.00");
    station.list_document.sauve_tout();
    rows().select(1);
    start_list();
    machine.run_for(milliseconds(10000));
    const std::string next = station.list.chemin_fichier;
    rows().select(3);
    station.list_window.a_modif.click();
    EXPECT_EQ(station.properties_window.start.text(), "9");
    EXPECT_EQ(station.deck_ring.deck(1).debut_piste, 3.0);
    EXPECT_EQ(station.list.chemin_fichier, next);
}

TEST_F(TrackPropertiesOnAir, SaveWhileTheChainHasReadAnotherRow) {
    open_tracks({100, 200, 200});
    start_list();
    machine.run_for(milliseconds(50000));
    cut_third_row(); // the chain loads row 2 in its midst
    EXPECT_THAT(rows().row(3), ElementsAre(track(3), "20.00", "80.00", "Rock", "100", "00:03:20"));
    EXPECT_THAT(rows().row(2), ElementsAre(track(2), "0.00", "200.00", "Rock", "100", "00:03:20"));
}

} // namespace sonarelle
