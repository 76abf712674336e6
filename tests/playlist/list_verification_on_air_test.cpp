#include <gmock/gmock.h>

#include "playlist/list_verification.h"
#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;

const std::string removed = " Non trouvé \nElément supprimé de la liste\nContinuez...";

class ListVerificationOnAir : public ChainFixture {
protected:
    /// Takes a track's file away and tests the list; the operator looks at the question for so long.
    void test_without(int number, Frames hesitation) {
        machine.disk.Kill(track(number));
        machine.dialogs.expect_box(track(number) + removed, Answer::yes, hesitation);
        machine.dialogs.expect_box("Validation des fichiers terminé avec succés ", Answer::ok);
        station.list_window.prechar.click();
    }
    void expect_third_row_played_to_its_end() const {
        EXPECT_THAT(paths_started(), ElementsAre(track(2), track(3), track(4)));
        EXPECT_THAT(times_of(OnAirEvent::Kind::started),
                    ElementsAre(std::pair{0.0, 1}, std::pair{54.0, 2}, std::pair{88.0, 3}));
    }
    [[nodiscard]] std::vector<std::string> paths_started() const {
        std::vector<std::string> paths;
        for (const auto& [at, event] : events)
            if (event.kind == OnAirEvent::Kind::started)
                paths.push_back(event.path);
        return paths;
    }
};

} // namespace

TEST_F(ListVerificationOnAir, PlaysTheNextRowToItsOwnEndBehindTheQuestion) {
    open_tracks({60, 60, 40, 90});
    rows().select(2);
    start_list();
    machine.run_for(seconds(10));
    test_without(1, seconds(100));
    expect_third_row_played_to_its_end();
}

TEST_F(ListVerificationOnAir, OfOneFilePlaysTheNextRowToItsOwnEndBehindTheQuestion) {
    open_tracks({60, 60, 40, 90});
    rows().select(2);
    start_list();
    machine.run_for(seconds(10));
    machine.disk.Kill(track(1));
    rows().select(1);
    machine.dialogs.expect_box(track(1) + removed, Answer::yes, seconds(100));
    station.list_window.prechar_fich.click();
    expect_third_row_played_to_its_end();
}

TEST_F(ListVerificationOnAir, LeavesNoTrackOutOfTheRun) {
    open_tracks({60, 60, 60, 60});
    rows().select(2);
    start_list();
    machine.run_for(seconds(10));
    test_without(1, {});
    machine.run_for(seconds(130));
    EXPECT_THAT(paths_started(), ElementsAre(track(2), track(3), track(4)));
}

TEST_F(ListVerificationOnAir, ThatTakesOutTheRowThatPlaysGoesOnWithTheNextOne) {
    open_tracks({60, 60, 60, 60});
    rows().select(2);
    start_list();
    machine.run_for(seconds(10));
    test_without(2, {});
    machine.run_for(seconds(130));
    EXPECT_THAT(paths_started(), ElementsAre(track(2), track(3), track(4)));
}

TEST_F(ListVerificationOnAir, ThatTakesOutTheFirstRowWhileItPlaysGoesOnWithTheNextOne) {
    open_tracks({60, 60, 60});
    start_list();
    machine.run_for(seconds(10));
    test_without(1, {});
    machine.run_for(seconds(120));
    EXPECT_THAT(paths_started(), ElementsAre(track(1), track(2), track(3)));
}

TEST_F(ListVerificationOnAir, KeepsTheNumberOfTheRowThatPlaysWhereThatRowWent) {
    open_tracks({60, 60, 60});
    rows().select(2);
    start_list();
    machine.run_for(seconds(10));
    test_without(2, {});
    EXPECT_EQ(station.list.ligne_en_lecture, 2);
}

TEST_F(ListVerificationOnAir, FollowsTheRowThatPlaysWhereAnEarlierOneWent) {
    open_tracks({60, 60, 60});
    rows().select(2);
    start_list();
    machine.run_for(seconds(10));
    test_without(1, {});
    EXPECT_EQ(station.list.ligne_en_lecture, 1);
}

TEST_F(ListVerificationOnAir, BeginsTheListAnewBehindALastRowThatWent) {
    open_tracks({60, 60, 60});
    rows().select(3);
    start_list();
    machine.run_for(seconds(10));
    test_without(3, {});
    machine.run_for(seconds(60));
    EXPECT_THAT(paths_started(), ElementsAre(track(3), track(1)));
}

} // namespace sonarelle
