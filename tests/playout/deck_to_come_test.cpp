// The deck that is called the next one is that with which the chain goes on.
#include "playout/air_view.h"
#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

class DeckToCome : public ChainFixture {};

} // namespace

TEST_F(DeckToCome, IsTheOneThatTheChainHasLoaded) {
    open_tracks({100, 100, 100});
    start_list();
    machine.add_track(track(9), 60);
    open_on(2, track(9));
    machine.run_for(seconds(1));
    EXPECT_EQ(deck_to_come(station.desk), nullptr) << "the chain will load over what a hand put there";
    station.main_window.load_ahead.set_value(1); // which a file that is opened by hand leaves off
    machine.run_for(seconds(90));
    EXPECT_EQ(deck_to_come(station.desk), &station.deck_ring.deck(2));
}

TEST_F(DeckToCome, IsNoneBehindAFault) {
    open_on_all({60, 60, 60});
    station.main_window.mix_titles.click();
    controls(1).play.click();
    machine.run_for(seconds(1));
    EXPECT_EQ(deck_to_come(station.desk), &station.deck_ring.deck(2));
    machine.disk.Kill(track(2));
    machine.run_for(seconds(56));
    ASSERT_TRUE(is_stopped_by_a_fault(station.desk));
    ASSERT_EQ(main_role(station.desk), DeckRole::on_air);
    EXPECT_EQ(deck_to_come(station.desk), nullptr) << "behind a fault";
}

TEST_F(DeckToCome, IsNoneInManualMode) {
    open_on_all({60, 60, 60});
    station.main_window.mix_titles.click();
    controls(1).play.click();
    station.main_window.a_mode_manuel.click();
    machine.run_for(seconds(1));
    EXPECT_EQ(deck_to_come(station.desk), nullptr);
}

} // namespace sonarelle
