// Starts that follow one another within the overlap of the first: what is heard, and what the ring lets go of.
#include "playout/chain_fixture.h"

namespace sonarelle {

namespace {

using Kind = OnAirEvent::Kind;
using Paths = std::vector<std::string>;

class CloseStarts : public ChainFixture {
protected:
    [[nodiscard]] Paths heard_at(int second, int millisecond = 500) {
        machine.run_for(seconds(second) + milliseconds(millisecond) - machine.time.now());
        return machine.media.on_air();
    }
    [[nodiscard]] std::vector<int> released() {
        std::vector<int> decks;
        for (const Deck& deck : station.deck_ring.decks)
            if (!deck.has_graph())
                decks.push_back(deck.number());
        return decks;
    }
    /// A long file whose row ends at 100, two short items, and a track behind them.
    void play_items_behind_a_track() {
        const std::vector<std::pair<int, std::string>> tracks{{300, "100"}, {8, "8"}, {3, "3"}, {200, "200"}};
        std::vector<enreg_liste> records;
        for (const auto& [length, end] : tracks) {
            const std::string path = track(static_cast<int>(records.size()) + 1);
            machine.add_track(path, length);
            records.push_back(record_of(path, end, 100, 0.0));
        }
        open_list("C:\\Sonarelle\\essai.dfm", records);
        rows().select(1);
        start_list();
    }
    void zap_at(int second) {
        machine.run_for(seconds(second) - machine.time.now());
        station.deck_ring.main_deck().controls.zap.click();
    }
};

} // namespace

TEST_F(CloseStarts, OfTwoItemsBehindATrackEachComeAtTheirMixPoints) {
    play_items_behind_a_track();
    machine.run_for(seconds(120));
    EXPECT_EQ(times_of(Kind::started), (Times{{0, 1}, {94, 2}, {101, 3}, {103, 1}}));
}

TEST_F(CloseStarts, OfTwoItemsBehindATrackAreHeardBesideOneAnother) {
    play_items_behind_a_track();
    EXPECT_EQ(heard_at(97), (Paths{track(1), track(2)}));
    EXPECT_EQ(heard_at(101), (Paths{track(2), track(3)}));
    EXPECT_EQ(heard_at(102), Paths{track(3)});
    EXPECT_EQ(heard_at(103), (Paths{track(3), track(4)}));
    EXPECT_EQ(heard_at(104), Paths{track(4)});
}

TEST_F(CloseStarts, OfTwoItemsBehindATrackCutTheTrackAlone) {
    play_items_behind_a_track();
    machine.run_for(seconds(140));
    EXPECT_EQ(times_of(Kind::cut), (Times{{101, 1}}));
}

TEST_F(CloseStarts, OfThreeZapsAreHeardTwoAtATime) {
    open_tracks({200, 200, 200, 200});
    start_list();
    zap_at(50);
    EXPECT_EQ(heard_at(51), (Paths{track(1), track(2)}));
    zap_at(53);
    EXPECT_EQ(heard_at(54), (Paths{track(2), track(3)}));
    zap_at(56);
    EXPECT_EQ(heard_at(57), (Paths{track(3), track(4)}));
    const int overlap = station.settings.mix_audio.value();
    EXPECT_EQ(heard_at(56 + overlap, -100), (Paths{track(3), track(4)}));
    EXPECT_EQ(heard_at(56 + overlap, 100), Paths{track(4)});
}

TEST_F(CloseStarts, OfThreeZapsLetGoOfEachDeckOnce) {
    open_tracks({200, 200, 200, 200});
    start_list();
    for (const int second : {50, 53, 56})
        zap_at(second);
    EXPECT_EQ(times_of(Kind::cut), (Times{{53, 1}, {56, 2}}));
    machine.run_for(seconds(30));
    ASSERT_EQ(times_of(Kind::cut).size(), 3U);
    EXPECT_EQ(times_of(Kind::cut).back().second, 3);
    EXPECT_EQ(released(), (std::vector<int>{2, 3}));
}

TEST_F(CloseStarts, OfThreeZapsLeaveTheChainItsMixPoint) {
    open_tracks({200, 200, 200, 200});
    start_list();
    for (const int second : {50, 53, 56})
        zap_at(second);
    machine.run_for(seconds(200));
    EXPECT_EQ(times_of(Kind::started).back(), (std::pair<double, int>{56 + 194, 2}));
}

} // namespace sonarelle
