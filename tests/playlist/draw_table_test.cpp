// Draws that avoid what was drawn before, and the table that they keep.
#include "playlist/draw_table.h"

#include <gtest/gtest.h>

#include <set>

#include "platform/simulated/scripted_random.h"

namespace sonarelle {

namespace {

class Draws : public testing::Test {
protected:
    /// Bars a number and draws from 1 to `count`, as a list in random order does. 0 for nothing.
    int next(int playing, int count) {
        table.bar(playing, count);
        return table.draw({1, count}).number.value_or(0);
    }

    Random random{20261122};
    DrawTable table{random};
};

using Entries = std::vector<int>;

} // namespace

TEST_F(Draws, GiveEachNumberOnceInACycle) {
    std::set<int> drawn{1};
    int number = 1;
    for (int turn = 0; turn < 49; ++turn) {
        number = next(number, 50);
        EXPECT_TRUE(drawn.insert(number).second) << number;
    }
    EXPECT_EQ(drawn.size(), 50U);
}

TEST_F(Draws, NeverGiveTheNumberThatPlays) {
    int number = 1;
    for (int turn = 0; turn < 1000; ++turn) {
        const int drawn = next(number, 5);
        EXPECT_NE(drawn, number);
        number = drawn;
    }
}

TEST_F(Draws, StayInTheirRange) {
    std::set<int> drawn;
    for (int turn = 0; turn < 1000; ++turn)
        drawn.insert(draw_any(random, {0, 4}));
    EXPECT_EQ(drawn, (std::set<int>{0, 1, 2, 3}));
}

TEST_F(Draws, OfTwoBeginAnewAtEachPass) {
    EXPECT_EQ(next(1, 2), 2);
    EXPECT_EQ(table.entries(), Entries{1});
    EXPECT_EQ(next(2, 2), 1);
    EXPECT_EQ(table.entries(), Entries{2});
}

TEST_F(Draws, BeginAnewWithTheNumberThatPlays) {
    for (const int number : {3, 1, 4})
        table.bar(number, 4);
    EXPECT_EQ(table.entries(), (Entries{3, 1, 4}));
    table.bar(2, 4);
    EXPECT_EQ(table.entries(), Entries{2});
    EXPECT_FALSE(table.holds(3));
}

TEST_F(Draws, BeginAnewWhereTheListHasBecomeShorterThanTheTable) {
    for (int number = 1; number <= 8; ++number)
        table.bar(number, 100);
    table.bar(2, 5);
    EXPECT_EQ(table.entries(), Entries{2});
}

TEST_F(Draws, OfWhatIsBarredAltogetherBeginAnewOnceMore) {
    for (int number = 1; number <= 3; ++number)
        table.bar(number, 100); // of another list
    const std::optional<int> drawn = table.draw({1, 3}).number;
    ASSERT_TRUE(drawn);
    EXPECT_NE(*drawn, 3);
    EXPECT_EQ(table.entries(), Entries{3});
}

TEST_F(Draws, OfTheOnlyNumberThereIsComeToNothing) {
    table.bar(1, 2);
    EXPECT_EQ(table.draw({1, 1}).number, std::nullopt);
}

TEST_F(Draws, OfNothingComeToNothing) {
    EXPECT_EQ(table.draw({0, 0}).number, std::nullopt);
    table.bar(0, 2);
    EXPECT_EQ(table.draw({0, 0}).number, std::nullopt);
}

TEST_F(Draws, TellTheirHitsInTheirOrder) {
    ScriptedRandom scripted{1};
    DrawTable foreseen{scripted};
    foreseen.bar(1, 100);
    foreseen.bar(3, 100);
    scripted.then({0.0F, 0.5F, 0.0F, 0.99F});
    const Draw draw = foreseen.draw({1, 4});
    EXPECT_EQ(draw.number, 4);
    EXPECT_EQ(draw.hits, (std::deque<int>{1, 3, 1}));
    EXPECT_EQ(draw.hit_count, 3);
}

TEST_F(Draws, KeepTheLastThousandHits) {
    ScriptedRandom scripted{1};
    DrawTable foreseen{scripted};
    foreseen.bar(1, 100);
    foreseen.bar(2, 100);
    scripted.then({0.0F});
    for (int hit = 0; hit < 1000; ++hit)
        scripted.then({0.1F});
    scripted.then({0.9F});
    const Draw draw = foreseen.draw({1, 10});
    EXPECT_EQ(draw.hits, std::deque<int>(1000, 2));
    EXPECT_EQ(draw.hit_count, 1001);
}

TEST_F(Draws, SayWhenTheTableBeginsAnew) {
    EXPECT_FALSE(table.bar(1, 3));
    EXPECT_FALSE(table.bar(2, 3));
    EXPECT_TRUE(table.bar(3, 3));
}

TEST_F(Draws, KnowNothingOfWhatWasCleared) {
    table.bar(7, 100);
    table.clear();
    EXPECT_FALSE(table.holds(7));
    EXPECT_TRUE(table.entries().empty());
}

} // namespace sonarelle
