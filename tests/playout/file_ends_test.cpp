// What follows a file that plays to its end: where no second of it is a mix point, its end is the chain's net.
#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using Kind = OnAirEvent::Kind;

class FileEndsTest : public ChainFixture {
protected:
    void play_for(int seconds_played) { machine.run_for(seconds(seconds_played)); }
    /// The first track ends 4 s before its overlap begins; items of the list are to be inserted.
    void open_list_that_ends_before_its_overlap() {
        station.settings.veille_antenne = 0;
        machine.add_track(track(1), 20);
        machine.add_track(track(2), 100);
        open_list("C:\\Sonarelle\\essai.dfm",
                  {record_of(track(1), "2", 100, 0.0), record_of(track(2), "100", 100, 0.0)});
        rows().select(1);
        start_list();
        station.settings.mix_courant = 6;
        station.settings.valide_fichier_aleatoire1 = true;
    }
};

} // namespace

TEST_F(FileEndsTest, FirstRowOfLessThanASecondIsFollowedAtItsEnd) {
    machine.add_track("C:\\court.mp3", 0.9);
    machine.add_track("C:\\b.mp3", 100);
    open_list("C:\\Sonarelle\\essai.dfm", {record_of("C:\\court.mp3", "0.40", 100, 0.0), record_of("C:\\b.mp3")});
    rows().select(1);
    start_list();
    play_for(3);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2}));
}

TEST_F(FileEndsTest, RowThatEndsAtZeroIsFollowedAtTheEndOfItsFile) {
    machine.add_track("C:\\a.mp3", 20);
    machine.add_track("C:\\b.mp3", 20);
    open_list("C:\\Sonarelle\\essai.dfm",
              {record_of("C:\\a.mp3", "0", 100, 0.0), record_of("C:\\b.mp3", "0", 100, 0.0)});
    rows().select(1);
    start_list();
    play_for(30);
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {20, 2}}));
}

TEST_F(FileEndsTest, ListOfTheSameFileOnlyPlaysOut) {
    machine.add_track("C:\\a.mp3", 100);
    open_list("C:\\Sonarelle\\essai.dfm", {record_of("C:\\a.mp3", "100"), record_of("C:\\a.mp3", "100")});
    rows().select(1);
    start_list();
    play_for(200);
    EXPECT_EQ(times_of(Kind::started).size(), 1U);
    EXPECT_TRUE(station.main_window.list_chain_timer.enabled());
}

TEST_F(FileEndsTest, InsertionOfItemsTakesTheNetOffTheFirstDeck) {
    open_tracks({100, 100, 100});
    start_list();
    station.settings.valide_fichier_aleatoire1 = true;
    station.settings.veille_antenne = 0;
    play_for(85);
    controls(1).forward.click();
    play_for(60);
    EXPECT_EQ(times_of(Kind::started).size(), 1U);
}

TEST_F(FileEndsTest, InsertionOfItemsLeavesATrackWithoutAMixPointOnTheFirstDeckUnfollowed) {
    open_list_that_ends_before_its_overlap();
    play_for(60);
    EXPECT_EQ(rows_started(), std::vector<int>{1});
}

TEST_F(FileEndsTest, TrackThatEndsBeforeItsOverlapIsFollowedAtTheEndOfItsFile) {
    open_list_that_ends_before_its_overlap();
    station.settings.valide_fichier_aleatoire1 = false;
    play_for(21);
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {20, 2}}));
}

TEST_F(FileEndsTest, InsertionOfItemsLeavesTheNetToTheThirdDeck) {
    open_tracks({100, 100, 100, 100});
    start_list();
    play_for(190);
    ASSERT_EQ(station.chain.lecteur_en_cours, 3);
    station.settings.valide_fichier_aleatoire1 = true;
    play_for(85);
    controls(3).forward.click();
    play_for(5);
    EXPECT_EQ(times_of(Kind::started).back().second, 1);
}

TEST_F(FileEndsTest, TrackTooShortForALoadStepIsFollowedWithoutOne) {
    open_tracks({10, 100});
    station.settings.mix_courant = station.settings.mix_defaut = 2;
    start_list();
    controls(1).counter.caption = "5";
    station.settings.prechargement = 7; // the load point lies before the begin
    play_for(3);
    EXPECT_TRUE(times_of(Kind::loaded).size() == 1);
    play_for(3);
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2}));
}

TEST_F(FileEndsTest, InsertionOfItemsLeavesTheNetToTheSecondDeck) {
    open_tracks({100, 100, 100});
    start_list();
    station.settings.valide_fichier_aleatoire1 = true;
    play_for(180);
    controls(2).forward.click();
    play_for(5);
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {94, 2}, {184, 3}}));
}

} // namespace sonarelle
