// A hand that zaps again before the next tick of the overlap.
#include "playlist/list_rows.h"
#include "playout/desk_fixture.h"

namespace sonarelle {

namespace {

class SecondZap : public DeskFixture {
protected:
    SecondZap() {
        start();
        put_list("C:\\Sonarelle\\jour.dfm", 4);
        machine.dialogs.expect_open("C:\\Sonarelle\\jour.dfm");
        station.list_window.A_liste.click();
        station.list_window.play_list.click();
        machine.run_for(seconds(45));
        station.zapping.zapping();
    }
};

} // namespace

TEST_F(SecondZap, FindsTheNewTrackAtItsBeginning) {
    EXPECT_EQ(window.elapsed.caption.get(), "0");
}

TEST_F(SecondZap, IsRefusedAsAnyZapSoEarly) {
    machine.dialogs.expect_box("secondes minimun sont demandées", Answer::ok);
    station.zapping.zapping();
    EXPECT_EQ(station.list.ligne_en_lecture, 2);
    EXPECT_EQ(rows().sub_item(2, list_column::end), "200.00");
}

} // namespace sonarelle
