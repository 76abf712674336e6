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

TEST_F(RowListeningTest, LeavesTheRowThatRandomOrderHasDrawn) {
    list().random_mode.click();
    machine.run_for(seconds(168)); // behind the load step
    const int drawn = station.list.index_en_cours.value();
    ASSERT_TRUE(station.chain.choix_prepare.is_true());
    machine.media.set_length(track(5), 3); // over before the mix point
    listen_to(5);
    EXPECT_EQ(station.list.index_en_cours, drawn);
    machine.run_for(seconds(20));
    EXPECT_EQ(rows_started().back(), drawn);
}

TEST_F(RowListeningTest, IsRefusedByHand) {
    list().player_mode.click();
    for (int deck = 2; deck <= 3; ++deck) {
        machine.add_track("C:\\bande.mp3", 100);
        open_on(deck, "C:\\bande.mp3");
    }
    window().a_mode_manuel.click();
    machine.dialogs.expect_box("En mode manuel", Answer::ok);
    listen_to(5);
    EXPECT_EQ(machine.media.on_air(), Texts{track(1)});
}

TEST_F(RowListeningTest, LeavesAFileThatWaitsForItsTurn) {
    list().player_mode.click();
    window().mix_titles.click();
    machine.add_track("C:\\bande.mp3", 100);
    open_on(3, "C:\\bande.mp3");
    machine.dialogs.expect_box("Le lecteur 3 attend son tour avec un fichier", Answer::ok);
    listen_to(5);
    EXPECT_EQ(station.deck_ring.deck(3).path, "C:\\bande.mp3");
}

TEST_F(RowListeningTest, InAListTakesTheDeckWhateverFileLiesOnIt) {
    machine.add_track("C:\\bande.mp3", 100);
    open_on(3, "C:\\bande.mp3");
    listen_to(5);
    EXPECT_EQ(machine.media.on_air(), (Texts{track(1), track(5)}));
}

TEST_F(RowListeningTest, OfARowBeyondTheChainsNumbersIsRefused) {
    while (rows().count() < 32768)
        rows().append({track(1), "0.10", "100.00", "", "100", ""});
    machine.dialogs.expect_box("La ligne 32768 ne peut pas être lue", Answer::ok);
    listen_to(32768);
    EXPECT_EQ(machine.media.on_air(), Texts{track(1)});
}

TEST_F(RowListeningTest, WithoutADeckOnTheAirStartsTheListWithTheRow) {
    list().stop_decks.click();
    listen_to(4);
    EXPECT_EQ(machine.media.on_air(), Texts{track(4)});
    EXPECT_EQ(station.list.ligne_en_lecture, 4);
}

} // namespace sonarelle
