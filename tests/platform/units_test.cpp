#include "platform/units.h"

#include <gtest/gtest.h>

#include <limits>

namespace sonarelle {

namespace {

TEST(Units, AMillisecondIsFortyEightFrames) {
    EXPECT_EQ(milliseconds(1000), Frames{48000});
    EXPECT_EQ(milliseconds(40), Frames{1920});
    EXPECT_EQ(seconds(3), Frames{144000});
}

TEST(Units, TheNearestFrameRoundsBothWays) {
    EXPECT_EQ(nearest_frame(0.1), Frames{4800});
    EXPECT_EQ(nearest_frame(1.49 / 48000), Frames{1});
    EXPECT_EQ(nearest_frame(1.51 / 48000), Frames{2});
    EXPECT_EQ(nearest_frame(-1.51 / 48000), Frames{-2});
}

TEST(Units, SecondsAndFramesGoForthAndBack) {
    for (const std::int64_t frame : {0, 1, 47999, 48001, 1'000'000'007})
        EXPECT_EQ(nearest_frame(in_seconds(Frames{frame})), Frames{frame});
}

TEST(Units, ATimeBeyondAllSoundStaysInRange) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_GT(nearest_frame(1e300) + seconds(1'000'000), nearest_frame(1e9));
    EXPECT_GT(nearest_frame(infinity) + seconds(1'000'000), nearest_frame(1e9));
    EXPECT_LT(nearest_frame(-infinity) - seconds(1'000'000), nearest_frame(-1e9));
}

TEST(Units, WhatIsNoNumberIsTheBeginning) {
    EXPECT_EQ(nearest_frame(std::numeric_limits<double>::quiet_NaN()), Frames{0});
}

} // namespace

} // namespace sonarelle
