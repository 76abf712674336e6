#include "playout/chain_fixture.h"

namespace sonarelle {

using ListDialogOnAir = ChainFixture;

TEST_F(ListDialogOnAir, LetsTheChainGoOnBehindACancel) {
    open_tracks({60, 60, 60});
    start_list();
    machine.run_for(seconds(10));
    machine.dialogs.expect_cancel();
    station.list_window.A_liste.click();
    machine.run_for(seconds(120));
    EXPECT_EQ(rows_started(), (std::vector{1, 2, 3}));
}

} // namespace sonarelle
