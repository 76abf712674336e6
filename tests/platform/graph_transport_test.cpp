#include "platform/graph_transport.h"

#include <gtest/gtest.h>

#include <limits>

namespace sonarelle {

namespace {

GraphTransport opened(double duration) {
    GraphTransport transport;
    transport.open(duration);
    return transport;
}

TEST(GraphTransport, BeginsStoppedAtTheBeginning) {
    const GraphTransport transport = opened(200);
    EXPECT_EQ(transport.state(), MediaState::stopped);
    EXPECT_EQ(transport.position(seconds(5)), 0);
}

TEST(GraphTransport, RunsAtTheClocksPace) {
    GraphTransport transport = opened(200);
    transport.run(seconds(5));
    EXPECT_EQ(transport.position(seconds(6)), 1);
    EXPECT_EQ(transport.position(seconds(6) + Frames{4800}), 1.1);
    EXPECT_EQ(transport.frame(seconds(6) + Frames{1}), Frames{48001});
}

TEST(GraphTransport, StandsAtItsEndAndStillRuns) {
    GraphTransport transport = opened(10.000007);
    transport.run(Frames{});
    EXPECT_LT(transport.position(seconds(10) - Frames{1}), 10);
    EXPECT_EQ(transport.position(seconds(11)), 10.000007);
    EXPECT_EQ(transport.state(), MediaState::running);
}

TEST(GraphTransport, APauseHoldsThePosition) {
    GraphTransport transport = opened(200);
    transport.run(Frames{});
    transport.pause(seconds(3));
    EXPECT_EQ(transport.position(seconds(60)), 3);
    EXPECT_EQ(transport.state(), MediaState::paused);
    transport.run(seconds(60));
    EXPECT_EQ(transport.position(seconds(62)), 5);
}

TEST(GraphTransport, AStopDoesNotRewind) {
    GraphTransport transport = opened(200);
    transport.run(Frames{});
    transport.stop(seconds(3));
    EXPECT_EQ(transport.position(seconds(60)), 3);
    EXPECT_EQ(transport.state(), MediaState::stopped);
}

TEST(GraphTransport, RunningItAgainChangesNothing) {
    GraphTransport transport = opened(200);
    transport.run(Frames{});
    transport.run(seconds(3));
    EXPECT_EQ(transport.position(seconds(4)), 4);
}

TEST(GraphTransport, ASeekHoldsWhileItRuns) {
    GraphTransport transport = opened(200);
    transport.run(Frames{});
    transport.put_position(100.5, seconds(3));
    EXPECT_EQ(transport.position(seconds(3)), 100.5);
    EXPECT_EQ(transport.position(seconds(5)), 102.5);
}

TEST(GraphTransport, ASeekHoldsWhileItStands) {
    GraphTransport transport = opened(200);
    transport.put_position(0.1, seconds(3));
    EXPECT_EQ(transport.position(seconds(50)), 0.1);
}

TEST(GraphTransport, ASeekBehindTheEndStandsAtIt) {
    GraphTransport transport = opened(200);
    for (const double position : {200.1, 1e300, std::numeric_limits<double>::infinity()}) {
        transport.put_position(position, Frames{});
        transport.run(Frames{});
        EXPECT_EQ(transport.position(seconds(1'000'000)), 200);
    }
}

TEST(GraphTransport, ASeekBeforeTheBeginningStandsThere) {
    GraphTransport transport = opened(200);
    for (const double position : {-0.1, -1e300, std::numeric_limits<double>::quiet_NaN()}) {
        transport.put_position(position, Frames{});
        EXPECT_EQ(transport.position(Frames{}), 0);
    }
}

TEST(GraphTransport, ASeekBackFromTheEndGoesOn) {
    GraphTransport transport = opened(10);
    transport.run(Frames{});
    transport.put_position(4, seconds(20));
    EXPECT_EQ(transport.position(seconds(21)), 5);
}

TEST(GraphTransport, AStopAtTheEndStaysThere) {
    GraphTransport transport = opened(10);
    transport.run(Frames{});
    transport.stop(seconds(60));
    EXPECT_EQ(transport.position(seconds(61)), 10);
}

TEST(GraphTransport, OpeningAgainBeginsAnew) {
    GraphTransport transport = opened(10);
    transport.run(Frames{});
    transport.open(20);
    EXPECT_EQ(transport.state(), MediaState::stopped);
    EXPECT_EQ(transport.position(seconds(5)), 0);
    EXPECT_EQ(transport.duration(), 20);
}

TEST(GraphTransport, AnEmptyGraphStandsAtNothing) {
    GraphTransport transport;
    transport.run(Frames{});
    EXPECT_EQ(transport.position(seconds(5)), 0);
}

} // namespace

} // namespace sonarelle
