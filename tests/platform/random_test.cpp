#include "platform/random.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <vector>

namespace sonarelle {

namespace {

std::vector<float> run_of(Random& random, int count) {
    std::vector<float> run;
    for (int i = 0; i < count; ++i)
        run.push_back(random.Rnd());
    return run;
}

TEST(Random, NumbersLieFromNothingToBelowOne) {
    Random random{1};
    for (const float number : run_of(random, 1'000'000)) {
        ASSERT_GE(number, 0.0F);
        ASSERT_LT(number, 1.0F);
    }
}

TEST(Random, NumbersFillTheRangeEvenly) {
    Random random{7};
    std::array<int, 10> tenths{};
    for (const float number : run_of(random, 100'000))
        ++tenths[static_cast<std::size_t>(number * 10)];
    for (const int count : tenths)
        EXPECT_NEAR(count, 10'000, 600);
}

TEST(Random, TheSameSeedGivesTheSameRun) {
    Random one{42};
    Random other{42};
    EXPECT_EQ(run_of(one, 1000), run_of(other, 1000));
}

TEST(Random, AnotherSeedGivesAnotherRun) {
    Random one{42};
    Random other{43};
    EXPECT_NE(run_of(one, 10), run_of(other, 10));
}

TEST(Random, WithoutAClockRandomizeDoesNothing) {
    Random plain{42};
    Random randomized{42};
    randomized.Randomize();
    EXPECT_EQ(run_of(plain, 100), run_of(randomized, 100));
}

TEST(Random, RandomizeMixesTheClockIn) {
    Random plain{42};
    Random randomized{42, [] { return std::uint64_t{12345}; }};
    randomized.Randomize();
    EXPECT_NE(run_of(plain, 10), run_of(randomized, 10));
}

// A station that seeds from a clock which stands still must not draw the same title again and again.
TEST(Random, RandomizeNeverRewinds) {
    Random random{42, [] { return std::uint64_t{12345}; }};
    std::set<float> firsts;
    for (int i = 0; i < 100; ++i) {
        random.Randomize();
        firsts.insert(random.Rnd());
    }
    EXPECT_GT(firsts.size(), 98U);
}

} // namespace

} // namespace sonarelle
