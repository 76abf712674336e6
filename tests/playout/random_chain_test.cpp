#include <algorithm>

#include "platform/failure.h"
#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using Kind = OnAirEvent::Kind;

/// A list in random order.
class RandomChainTest : public ChainFixture {
protected:
    void start_at_random() {
        station.list_window.random_mode.click();
        station.list_window.play_list.click();
    }

    /// Tracks whose rows end behind their files: no second of theirs is the mix point, each plays out.
    void open_tracks_that_play_out(int count) {
        std::vector<enreg_liste> records;
        for (int row = 1; row <= count; ++row) {
            machine.add_track(track(row), 20);
            records.push_back(record_of(track(row), "60.00", 100, 0.0));
        }
        open_list("C:\\Sonarelle\\essai.dfm", records);
        rows().select(1);
    }

    void add_row(const std::string& path) {
        machine.add_track(path, 100);
        rows().append({path, "0.10", "100.00", "Rock", "100", ""});
        station.list_document.sauve_tout();
    }

    [[nodiscard]] std::vector<int> rows_loaded() const {
        std::vector<int> loaded;
        for (const auto& [at, event] : events)
            if (event.kind == Kind::loaded)
                loaded.push_back(event.row);
        return loaded;
    }
};

} // namespace

TEST_F(RandomChainTest, FollowsAShortItemByTheRowThatTheLoadStepDrew) {
    open_tracks(std::vector<int>(10, 20));
    start_at_random();
    machine.run_for(seconds(19 * 5 + 1));
    EXPECT_EQ(rows_started().size(), 6U);
    EXPECT_EQ(rows_started(), rows_loaded());
}

TEST_F(RandomChainTest, ChosenBehindTheLoadOfTheFirstRowIsFollowedByThatRow) {
    open_tracks({20, 20, 20});
    rows().select(3);
    start_list();
    machine.run_for(seconds(16));
    station.list_window.random_mode.click();
    machine.run_for(seconds(4));
    EXPECT_EQ(rows_started(), (std::vector<int>{3, 1}));
}

TEST_F(RandomChainTest, FollowsAnItemTooShortForALoadStepByTheNextRow) {
    open_tracks({3, 3, 100});
    start_at_random();
    machine.run_for(seconds(5));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 2, 3}));
}

TEST_F(RandomChainTest, StartsTheRowsThatItDrawsAtTheEndsOfFiles) {
    open_tracks_that_play_out(10);
    start_at_random();
    machine.run_for(seconds(20 * 9 + 1));
    std::vector<int> started = rows_started();
    std::ranges::sort(started);
    EXPECT_EQ(started, (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
}

TEST_F(RandomChainTest, TakesARowThatWasAddedWhileNoneCouldBeDrawn) {
    open_tracks_that_play_out(1);
    start_at_random();
    machine.run_for(milliseconds(30'300));
    add_row("C:\\neuf.mp3");
    machine.run_for(milliseconds(200));
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{"C:\\neuf.mp3"});
}

TEST_F(RandomChainTest, TellsTheLoadOfARowThatIsDrawnBehindTheLoadStep) {
    open_tracks({100, 100, 100});
    start_at_random();
    machine.run_for(seconds(88));
    controls(1).forward.click();
    machine.run_for(seconds(5));
    EXPECT_EQ(rows_loaded().size(), 3U);
    EXPECT_EQ(rows_loaded().back(), rows_started().back());
}

TEST_F(RandomChainTest, ZapThatIsRefusedLeavesTheRowThatTheLoadStepDrew) {
    open_tracks(std::vector<int>(10, 100));
    start_at_random();
    machine.run_for(seconds(88));
    ASSERT_EQ(rows_loaded().size(), 2U);
    const int drawn = rows_loaded().back();
    for (int row = 2; row <= 10; ++row)
        if (row != drawn)
            machine.media.set_unplayable(track(row));
    machine.dialogs.expect_box("lecture impossible", Answer::ok);
    station.main_window.key_press(U'z');
    machine.run_for(seconds(12));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, drawn}));
}

TEST_F(RandomChainTest, ZapThatIsRefusedBeforeTheLoadStepLeavesItsDraw) {
    open_tracks(std::vector<int>(10, 100));
    start_at_random();
    machine.run_for(seconds(40));
    for (int row = 2; row <= 10; ++row)
        machine.media.set_unplayable(track(row));
    machine.dialogs.expect_box("lecture impossible", Answer::ok);
    station.main_window.key_press(U'z');
    EXPECT_EQ(station.list.index_en_cours, 1);
    for (int row = 2; row <= 10; ++row)
        machine.add_track(track(row), 100);
    machine.run_for(seconds(60));
    EXPECT_EQ(rows_started().size(), 2U);
    EXPECT_NE(rows_started().back(), 1);
}

TEST_F(RandomChainTest, DrawsAnewWhereTheDrawnRowsDiskNoLongerAnswersAtTheMixPoint) {
    open_tracks({100, 100, 100});
    start_at_random();
    machine.run_for(seconds(88));
    ASSERT_EQ(rows_loaded().size(), 2U);
    const int drawn = rows_loaded().back();
    machine.disk.refuse(track(drawn), FailureNumber::device_fault);
    machine.run_for(seconds(12));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 5 - drawn})); // of rows 2 and 3 the other one
}

TEST_F(RandomChainTest, DrawsAnewBehindAZapThatRefusedTheDrawnRow) {
    open_tracks(std::vector<int>(5, 100));
    start_at_random();
    machine.run_for(seconds(90));
    const int drawn = rows_loaded().back();
    for (int row = 1; row <= 5; ++row)
        machine.media.set_unplayable(track(row));
    std::string refused;
    for (int zap = 0; zap < 100 && refused.find(track(drawn)) == std::string::npos; ++zap) {
        machine.dialogs.expect_box("lecture impossible", Answer::ok);
        station.list_window.zap.click();
        refused = machine.dialogs.last().text;
    }
    for (int row = 1; row <= 5; ++row)
        if (row != drawn)
            machine.media.set_length(track(row), 100);
    machine.run_for(seconds(10));
    ASSERT_EQ(rows_started().size(), 2U);
    EXPECT_NE(rows_started().back(), drawn);
}

TEST_F(RandomChainTest, DrawsAnewWhereTheDrawnFirstRowIsRemovedAtTheMixPoint) {
    open_tracks({100, 100});
    rows().select(2);
    start_at_random();
    machine.run_for(seconds(88));
    ASSERT_EQ(rows_loaded(), (std::vector<int>{2, 1}));
    add_row("C:\\neuf.mp3");
    machine.disk.Kill(track(1));
    machine.run_for(seconds(12));
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{"C:\\neuf.mp3"});
}

TEST_F(RandomChainTest, DrawsAnewWhereTheRowBeforeARemovedOneIsTheOneThatPlays) {
    open_tracks({100, 100});
    start_at_random();
    machine.run_for(seconds(88));
    ASSERT_EQ(rows_loaded(), (std::vector<int>{1, 2}));
    add_row("C:\\neuf.mp3");
    machine.disk.Kill(track(2));
    machine.run_for(seconds(12));
    EXPECT_EQ(machine.media.on_air(), std::vector<std::string>{"C:\\neuf.mp3"});
}

TEST_F(RandomChainTest, DrawsAnewWhereADrawnRowIsRemovedAtTheMixPoint) {
    open_tracks({100, 100, 100, 100, 100, 100});
    start_at_random();
    machine.run_for(seconds(88));
    const int drawn = rows_loaded().back();
    ASSERT_GT(drawn, 2);
    machine.disk.Kill(track(drawn));
    machine.random.then({0.0F, 0.9F}); // of the five rows that are left the first, which plays, and the last
    machine.run_for(seconds(12));
    EXPECT_EQ(rows_started(), (std::vector<int>{1, 5}));
}

} // namespace sonarelle
