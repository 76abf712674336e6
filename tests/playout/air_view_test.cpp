#include "playout/air_view.h"

#include <algorithm>

#include "platform/failure.h"
#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

class AirView : public ChainFixture {
protected:
    /// What follows the track on the air, by its place: the next one is the first.
    [[nodiscard]] std::string to_come(std::size_t place = 0) {
        const std::vector<std::string> paths = paths_to_come(station.desk, [this](const std::string& path) {
            return std::ranges::find(missing, path) != missing.end();
        });
        return place < paths.size() ? name_without_ending(paths[place]) : std::string{};
    }
    [[nodiscard]] std::string then() { return to_come(1); }
    [[nodiscard]] std::vector<DeckRole> roles() {
        std::vector<DeckRole> roles;
        for (const Deck& deck : station.deck_ring.decks)
            roles.push_back(role_of(station.desk, deck));
        return roles;
    }

    std::vector<std::string> missing;
};

using Roles = std::vector<DeckRole>;

} // namespace

TEST_F(AirView, NothingFollowsBeforeTheListRuns) {
    open_tracks({200, 200, 200});
    EXPECT_EQ(to_come(), "");
}

TEST_F(AirView, NamesTheNextRowFromTheFirstSecond) {
    open_tracks({200, 200, 200});
    start_list();
    machine.run_for(seconds(1));
    EXPECT_EQ(to_come(), "titre 2");
}

TEST_F(AirView, KnowsTheRowToComeFromTheFirstSecondOnAndAfterAPress) {
    open_tracks({200, 200, 200});
    const auto row = [this] { return row_to_come(station.desk, [](const std::string&) { return false; }); };
    EXPECT_EQ(row(), 0);
    start_list();
    machine.run_for(seconds(1));
    EXPECT_EQ(row(), 2);
    machine.run_for(seconds(189));
    EXPECT_EQ(row(), 2) << "which is loaded now";
    station.list_window.rows.click(2);
    EXPECT_EQ(row(), 3);
}

TEST_F(AirView, NamesTheLoadedTrackBetweenLoadAndStart) {
    open_tracks({200, 200, 200});
    start_list();
    machine.run_for(seconds(190));
    EXPECT_EQ(to_come(), "titre 2");
    EXPECT_EQ(roles(), (Roles{DeckRole::on_air, DeckRole::loaded, DeckRole::empty}));
}

TEST_F(AirView, NamesTheRowBehindTheNewTrackWhileTheOldOneFades) {
    open_tracks({200, 200, 200});
    start_list();
    machine.run_for(seconds(196));
    EXPECT_EQ(to_come(), "titre 3");
    EXPECT_EQ(roles(), (Roles{DeckRole::heard, DeckRole::on_air, DeckRole::empty}));
}

TEST_F(AirView, NamesTheFirstRowBehindTheLastOne) {
    open_tracks({200, 200});
    start_list();
    machine.run_for(seconds(205));
    EXPECT_EQ(to_come(), "titre 1");
}

TEST_F(AirView, NamesTheRowBehindTheNextOneBeforeAndAfterItIsLoaded) {
    open_tracks({200, 200, 200});
    start_list();
    machine.run_for(seconds(1));
    EXPECT_EQ(then(), "titre 3");
    machine.run_for(seconds(189));
    EXPECT_EQ(then(), "titre 3");
    machine.run_for(seconds(6));
    EXPECT_EQ(then(), "titre 1") << "round the end";
}

TEST_F(AirView, NamesNothingBehindALoadedDraw) {
    open_tracks({200, 200, 200});
    start_list();
    station.chain.ordre_aleatoire = true;
    machine.run_for(seconds(190));
    EXPECT_NE(to_come(), "");
    EXPECT_EQ(then(), "");
}

TEST_F(AirView, NamesTheThirdDeckBehindTheNextOne) {
    open_on_all({60, 60, 60});
    station.main_window.mix_titles.click();
    controls(1).play.click();
    machine.run_for(seconds(1));
    EXPECT_EQ(to_come(), "titre 2");
    EXPECT_EQ(then(), "titre 3");
}

TEST_F(AirView, NamesNoDeckWithoutAFileBehindTheNextOne) {
    open_on_all({60, 60});
    station.main_window.mix_titles.click();
    controls(1).play.click();
    machine.run_for(seconds(1));
    EXPECT_EQ(to_come(), "titre 2");
    EXPECT_EQ(then(), "");
}

TEST_F(AirView, GoesOverRowsOfTheFileOnTheAir) {
    machine.add_track("C:\\a.mp3", 100);
    machine.add_track("C:\\b.mp3", 100);
    open_list("C:\\Sonarelle\\essai.dfm",
              {record_of("C:\\a.mp3", "100"), record_of("C:\\a.mp3", "100"), record_of("C:\\b.mp3", "100")});
    rows().select(1);
    start_list();
    machine.run_for(seconds(1));
    EXPECT_EQ(to_come(), "b");
    EXPECT_EQ(then(), "a");
}

TEST_F(AirView, GoesOverRowsWhoseFileIsMissingAsTheChainDoes) {
    open_tracks({100, 100, 100});
    start_list();
    machine.run_for(seconds(1));
    machine.disk.Kill(track(2));
    missing = {track(2)};
    EXPECT_EQ(to_come(), "titre 3");
    machine.run_for(seconds(100));
    EXPECT_EQ(name_on_air(station.desk), "titre 3");
}

TEST_F(AirView, NamesTheNextRowWhereAllFilesAreMissing) {
    open_tracks({100, 100, 100});
    start_list();
    machine.run_for(seconds(1));
    missing = {track(2), track(3)};
    EXPECT_EQ(to_come(), "titre 2");
}

TEST_F(AirView, NothingFollowsAListThatAFaultHasStopped) {
    open_tracks({100, 100});
    start_list();
    machine.disk.refuse("C:\\Musique", FailureNumber::path_not_found);
    machine.run_for(seconds(88));
    EXPECT_TRUE(is_stopped_by_a_fault(station.desk));
    EXPECT_EQ(to_come(), "");
}

TEST_F(AirView, RescuedListIsStoppedNoMore) {
    open_tracks({40, 40});
    start_list();
    machine.disk.refuse("C:\\Musique", FailureNumber::path_not_found);
    machine.run_for(seconds(28));
    machine.disk.heal("C:\\Musique");
    machine.run_for(seconds(20));
    EXPECT_FALSE(is_stopped_by_a_fault(station.desk));
    EXPECT_EQ(to_come(), "titre 1");
}

TEST_F(AirView, DecksChainedByHandBehindAFaultAreNoStoppedList) {
    open_tracks({40, 40});
    start_list();
    machine.disk.refuse("C:\\Musique", FailureNumber::path_not_found);
    machine.run_for(seconds(28));
    station.main_window.mix_titles.click();
    EXPECT_FALSE(is_stopped_by_a_fault(station.desk));
}

TEST_F(AirView, DeckThatHasPlayedOutBehindAFaultIsEmptyOnceTheListIsTakenUp) {
    open_tracks({40, 40, 40});
    start_list();
    machine.run_for(seconds(50));
    ASSERT_EQ(station.chain.lecteur_en_cours, 2);
    machine.disk.refuse("C:\\Musique", FailureNumber::path_not_found);
    machine.run_for(seconds(20));
    machine.disk.heal("C:\\Musique");
    machine.run_for(seconds(20));
    ASSERT_EQ(station.chain.lecteur_en_cours, 1);
    EXPECT_EQ(roles(), (Roles{DeckRole::on_air, DeckRole::empty, DeckRole::empty}));
}

TEST_F(AirView, NamesWhatIsHeardWhileTheNextTrackIsLoaded) {
    open_tracks({200, 200, 200});
    start_list();
    machine.run_for(seconds(190));
    EXPECT_EQ(name_on_air(station.desk), "titre 1");
    EXPECT_EQ(seconds_left(station.desk), 10);
}

TEST_F(AirView, CountsToTheEndOfPlayOfTheRow) {
    machine.add_track(track(1), 200);
    open_list("C:\\Sonarelle\\essai.dfm", {record_of(track(1), "150.00")});
    rows().select(1);
    station.list_window.random_mode.click();
    station.list_window.play_list.click();
    machine.run_for(seconds(20));
    EXPECT_EQ(seconds_left(station.desk), 130);
}

TEST_F(AirView, CountsToTheEndOfTheFileThatGoesOnBehindAStop) {
    open_tracks({200, 200, 200});
    start_list();
    machine.run_for(seconds(20));
    controls(1).stop.click();
    controls(1).pause.click();
    machine.run_for(seconds(5));
    ASSERT_EQ(main_role(station.desk), DeckRole::on_air);
    EXPECT_EQ(seconds_left(station.desk), 195);
}

TEST_F(AirView, KeepsNameAndTimeInAPause) {
    open_tracks({200, 200});
    start_list();
    machine.run_for(seconds(50));
    controls(1).pause.click();
    machine.run_for(seconds(30));
    EXPECT_EQ(main_role(station.desk), DeckRole::paused);
    EXPECT_EQ(name_on_air(station.desk), "titre 1");
    EXPECT_EQ(seconds_left(station.desk), 150);
}

TEST_F(AirView, NamesEachDeckThatIsHeard) {
    open_tracks({200, 200, 200});
    start_list();
    machine.run_for(seconds(196));
    EXPECT_EQ(name_heard(station.desk, station.deck_ring.deck(1)), "titre 1");
    EXPECT_EQ(name_heard(station.desk, station.deck_ring.deck(2)), "titre 2");
    EXPECT_EQ(name_heard(station.desk, station.deck_ring.deck(3)), "");
}

TEST_F(AirView, LoadedDeckIsNotHeard) {
    open_tracks({200, 200, 200});
    start_list();
    machine.run_for(seconds(190));
    EXPECT_EQ(name_heard(station.desk, station.deck_ring.deck(2)), "");
}

TEST_F(AirView, NothingIsOnTheAirBehindTheEndOfTheFile) {
    open_on_all({20, 60, 60});
    station.main_window.a_mode_manuel.click();
    controls(1).play.click();
    machine.run_for(seconds(30));
    EXPECT_EQ(main_role(station.desk), DeckRole::ended);
    EXPECT_EQ(name_on_air(station.desk), "");
    EXPECT_EQ(seconds_left(station.desk), 0);
}

TEST_F(AirView, DeckThatStillSoundsIsTheAirWhenTheMainOneIsStopped) {
    open_tracks({200, 200, 200});
    start_list();
    machine.run_for(seconds(196));
    controls(2).stop.click();
    EXPECT_EQ(air_role(station.desk), DeckRole::heard);
    EXPECT_EQ(name_on_air(station.desk), "titre 1");
    EXPECT_EQ(seconds_left(station.desk), 4);
}

TEST_F(AirView, MainDeckIsTheAirBesideOneThatFades) {
    open_tracks({200, 200, 200});
    start_list();
    machine.run_for(seconds(196));
    EXPECT_EQ(air_role(station.desk), DeckRole::on_air);
    EXPECT_EQ(name_on_air(station.desk), "titre 2");
}

TEST_F(AirView, SilenceIsTheMainDecksRole) {
    open_tracks({200, 200, 200});
    start_list();
    controls(1).stop.click();
    EXPECT_EQ(air_role(station.desk), DeckRole::ended);
    EXPECT_EQ(deck_on_air(station.desk), nullptr);
}

TEST_F(AirView, AnItemThatHasRunOutIsNotHeard) {
    open_tracks({10, 100, 100});
    start_list();
    machine.run_for(seconds(15));
    EXPECT_EQ(roles(), (Roles{DeckRole::empty, DeckRole::on_air, DeckRole::empty}));
}

TEST_F(AirView, NothingIsNamedBeforeADraw) {
    open_tracks({200, 200, 200});
    start_list();
    station.chain.ordre_aleatoire = true;
    machine.run_for(seconds(1));
    EXPECT_EQ(to_come(), "");
}

TEST_F(AirView, ChainOverDecksNamesTheFileOfTheNextDeck) {
    open_on_all({60, 60, 60});
    station.main_window.mix_titles.click();
    controls(2).play.click();
    machine.run_for(seconds(1));
    EXPECT_EQ(to_come(), "titre 3");
}

TEST_F(AirView, NothingFollowsByItselfInManualMode) {
    open_on_all({60, 60, 60});
    station.main_window.a_mode_manuel.click();
    controls(1).play.click();
    machine.run_for(seconds(1));
    EXPECT_EQ(to_come(), "");
}

TEST_F(AirView, PromisesNothingWhereTheChainOverDecksFollowsNothing) {
    open_tracks({200, 200, 200});
    station.main_window.mix_list.click();
    start_list();
    machine.add_track(track(9), 60);
    open_on(2, track(9));
    station.main_window.a_mode_auto.click();
    EXPECT_EQ(to_come(), "");
    station.main_window.mix_titles.click();
    EXPECT_EQ(to_come(), "titre 9");
}

TEST_F(AirView, CountsDownToTheMix) {
    open_tracks({200, 200, 200});
    start_list();
    machine.run_for(seconds(100));
    EXPECT_EQ(seconds_to_mix(station.desk), 94); // to the second 194
    machine.run_for(seconds(93));
    EXPECT_EQ(seconds_to_mix(station.desk), 1);
    machine.run_for(seconds(2));
    EXPECT_EQ(seconds_to_mix(station.desk), 193) << "that of the next track";
}

TEST_F(AirView, CountsDownOverDecksToo) {
    open_on_all({100, 100, 100});
    station.main_window.mix_titles.click();
    controls(1).play.click();
    machine.run_for(seconds(10));
    EXPECT_EQ(seconds_to_mix(station.desk), 84);
}

TEST_F(AirView, CountsDownToNoMixOverDecksWithoutAFileOnTheNext) {
    open_on_all({100});
    station.main_window.mix_titles.click();
    controls(1).play.click();
    machine.run_for(seconds(10));
    EXPECT_EQ(seconds_to_mix(station.desk), std::nullopt);
}

TEST_F(AirView, CountsDownToNoMixWhereNoneComes) {
    open_on_all({100, 100, 100});
    EXPECT_EQ(seconds_to_mix(station.desk), std::nullopt) << "nothing plays";
    station.main_window.mix_titles.click();
    controls(1).play.click();
    controls(1).pause.click();
    EXPECT_EQ(seconds_to_mix(station.desk), std::nullopt) << "paused";
    controls(1).pause.click();
    station.main_window.a_mode_manuel.click();
    EXPECT_EQ(seconds_to_mix(station.desk), std::nullopt) << "by hand";
}

} // namespace sonarelle
