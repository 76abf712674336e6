#include <gmock/gmock.h>

#include "playlist/list_rows.h"
#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;

class StartChangeOnAir : public ChainFixture {
protected:
    /// Chooses a row for a new start of play; the operator types for twenty seconds.
    void change_start_slowly(int row) {
        rows().select(row);
        machine.dialogs.expect_input("9", seconds(20));
        station.list_window.a_debutpiste_fichier.click();
    }
    [[nodiscard]] std::vector<std::string> starts() {
        std::vector<std::string> cells;
        for (int row = 1; row <= rows().count(); ++row)
            cells.push_back(rows().sub_item(row, list_column::start));
        return cells;
    }
};

} // namespace

TEST_F(StartChangeOnAir, ChangesTheChosenRowAlthoughTheChainSelectsAnother) {
    open_tracks({60, 60, 60});
    start_list();
    machine.run_for(seconds(50));
    change_start_slowly(3);
    EXPECT_THAT(starts(), ElementsAre("0.00", "0.00", "9.00"));
}

TEST_F(StartChangeOnAir, FollowsTheChosenRowWhenTheChainTakesOneOut) {
    open_tracks({60, 60, 60});
    machine.disk.Kill(track(2));
    start_list();
    machine.run_for(seconds(40));
    change_start_slowly(3);
    EXPECT_THAT(starts(), ElementsAre("0.00", "9.00"));
}

TEST_F(StartChangeOnAir, ChangesNoOtherRowWhenTheChosenOneIsTakenOut) {
    open_tracks({60, 60, 60});
    machine.disk.Kill(track(2));
    start_list();
    machine.run_for(seconds(40));
    machine.dialogs.expect_input("9", seconds(20));
    machine.dialogs.expect_box(" erreur ", Answer::ok);
    rows().select(2);
    station.list_window.a_debutpiste_fichier.click();
    EXPECT_THAT(starts(), ElementsAre("0.00", "0.00"));
}

} // namespace sonarelle
