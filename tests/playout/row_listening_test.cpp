// A row that is heard once over the track on the air.
#include "playout/row_listening.h"

#include "playout/random_order_fixture.h"

namespace sonarelle {

namespace {

class RowListeningTest : public RandomOrderFixture {
protected:
    RowListeningTest() {
        open_tracks({200, 200, 200, 200, 10});
        start_list();
        machine.run_for(seconds(20));
    }
    void listen_to(int row) {
        rows().click(row);
        list().A_ecoute.click();
    }
    void expect_no_flag_is_left() {
        EXPECT_FALSE(station.chain.ecoute_demandee.is_true());
        EXPECT_FALSE(station.chain.ecoute_en_cours.is_true());
    }
};

} // namespace

TEST_F(RowListeningTest, IsHeardOverTheTrackOnTheDeckThatTheChainDoesntNeed) {
    listen_to(5);
    EXPECT_EQ(machine.media.on_air(), (Texts{track(1), track(5)}));
    EXPECT_EQ(station.deck_ring.deck(3).path, track(5));
    EXPECT_EQ(station.chain.lecteur_mix_special, 3);
    expect_no_flag_is_left();
}

TEST_F(RowListeningTest, LeavesTheListWhereItWas) {
    listen_to(5);
    EXPECT_EQ(station.list.ligne_en_lecture, 1);
    EXPECT_EQ(station.list.index_en_cours, 1);
    EXPECT_EQ(rows().selected(), 1);
    machine.run_for(seconds(180));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2}));
}

TEST_F(RowListeningTest, LeavesTheChainOfTheList) {
    listen_to(5);
    EXPECT_TRUE(station.chain.mode_enchainement.is_true());
    EXPECT_TRUE(station.main_window.list_chain_timer.enabled());
}

TEST_F(RowListeningTest, LeavesTheChainOverDecks) {
    list().player_mode.click();
    listen_to(5);
    EXPECT_TRUE(station.chain.mode_enchainement.is_false());
    EXPECT_TRUE(station.main_window.deck_chain_timer.enabled());
}

TEST_F(RowListeningTest, OfAMissingFileSaysSoAndLeavesNothingBehind) {
    machine.disk.Kill(track(5));
    listen_to(5);
    EXPECT_EQ(controls(3).title.caption.get(), "Non trouvé");
    EXPECT_EQ(machine.media.on_air(), Texts{track(1)});
    expect_no_flag_is_left();
}

TEST_F(RowListeningTest, OfAFileThatCantBePlayedLeavesNothingBehind) {
    machine.media.set_unplayable(track(5));
    listen_to(5);
    EXPECT_EQ(machine.media.on_air(), Texts{track(1)});
    expect_no_flag_is_left();
    machine.run_for(seconds(180));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2}));
}

TEST_F(RowListeningTest, IsRefusedWhileItsDeckFades) {
    machine.run_for(seconds(176)); // two seconds into the overlap
    ASSERT_EQ(machine.media.on_air(), (Texts{track(1), track(2)}));
    machine.dialogs.expect_box("est encore à l'antenne", Answer::ok);
    listen_to(5);
    EXPECT_EQ(machine.media.on_air(), (Texts{track(1), track(2)}));
    expect_no_flag_is_left();
}

TEST_F(RowListeningTest, IsRefusedDuringASpecialMix) {
    machine.add_track("C:\\bande.mp3", 10);
    open_on(2, "C:\\bande.mp3");
    controls(2).special_mix.click();
    machine.dialogs.expect_box("Un mixage spécial est en cours", Answer::ok);
    listen_to(5);
    EXPECT_EQ(machine.media.on_air(), (Texts{track(1), "C:\\bande.mp3"}));
}

TEST_F(RowListeningTest, WithoutADeckOnTheAirStartsTheListWithTheRow) {
    list().stop_decks.click();
    listen_to(4);
    EXPECT_EQ(machine.media.on_air(), Texts{track(4)});
    EXPECT_EQ(station.list.ligne_en_lecture, 4);
}

} // namespace sonarelle
