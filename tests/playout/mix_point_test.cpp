// Where the next track comes in, as it is marked on a deck.
#include "playout/air_view.h"
#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

class MixPoint : public ChainFixture {};

} // namespace

TEST_F(MixPoint, OfATrackThatWaitsIsThatOfItsOwnLength) {
    open_tracks({100, 3, 100});
    start_list();
    machine.run_for(seconds(90));
    EXPECT_EQ(mix_point(station.desk, station.deck_ring.deck(1)), 94);
    EXPECT_EQ(mix_point(station.desk, station.deck_ring.deck(2)), 2) << "a short item overlaps by a second";
    machine.run_for(seconds(5));
    EXPECT_EQ(mix_point(station.desk, station.deck_ring.deck(2)), 2);
}

TEST_F(MixPoint, OnTheAirFollowsTheOverlapInForce) {
    open_tracks({100, 100});
    start_list();
    station.main_window.overlap_more.click();
    EXPECT_EQ(mix_point(station.desk, station.deck_ring.deck(1)), 93);
}

TEST_F(MixPoint, IsNoneByHandNorWithoutAnEnd) {
    open_on_all({100, 60, 60});
    EXPECT_EQ(mix_point(station.desk, station.deck_ring.deck(1)), 94);
    station.main_window.a_mode_manuel.click();
    EXPECT_EQ(mix_point(station.desk, station.deck_ring.deck(1)), std::nullopt);
    station.main_window.a_mode_auto.click();
    controls(1).counter.caption = "0";
    EXPECT_EQ(mix_point(station.desk, station.deck_ring.deck(1)), std::nullopt);
    controls(1).counter.caption = "?";
    EXPECT_EQ(mix_point(station.desk, station.deck_ring.deck(1)), std::nullopt);
}

TEST_F(MixPoint, IsNoneInASpecialMix) {
    open_on_all({100, 60, 60});
    station.main_window.mix_titles.click();
    controls(1).play.click();
    controls(2).special_mix.click();
    EXPECT_EQ(mix_point(station.desk, station.deck_ring.deck(2)), std::nullopt);
}

} // namespace sonarelle
