#include <algorithm>

#include "playout/chain_bench.h"

namespace sonarelle {

namespace {

using Kind = OnAirEvent::Kind;

/// A list in random order.
class RandomChainTest : public ChainBench {
protected:
    void start_at_random() {
        station.list_window.Option2.click();
        station.list_window.Image1.click();
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
    machine.add_track("C:\\neuf.mp3", 100);
    rows().append({"C:\\neuf.mp3", "0.10", "100.00", "Rock", "100", ""});
    station.list_document.sauve_tout();
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

} // namespace sonarelle
