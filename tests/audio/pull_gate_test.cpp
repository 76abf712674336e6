#include "platform/audio/pull_gate.h"

#include <gtest/gtest.h>

#include <vector>

namespace sonarelle {
namespace {

class Gate : public testing::Test {
protected:
    /// What a device gets into a block that is still full of the last one.
    std::vector<float> pull_by_device() {
        std::vector<float> block(2 * 100, 0.5F);
        gate.pull_by_device(block.data(), 100);
        return block;
    }

    ProgrammeBus bus;
    PullGate gate{bus};
};

const std::vector<float> silence(2 * 100);

TEST_F(Gate, GivesADeviceWithoutTheTurnSilence) {
    gate.give_turn(PullGate::Turn::pacer);
    EXPECT_EQ(pull_by_device(), silence);
    EXPECT_EQ(bus.rendered(), Frames{0});
}

TEST_F(Gate, RendersForTheDeviceThatHasTheTurn) {
    gate.give_turn(PullGate::Turn::device);
    EXPECT_EQ(pull_by_device(), silence);
    EXPECT_EQ(bus.rendered(), Frames{100});
}

TEST_F(Gate, CountsWhatWasAskedForInVainToo) {
    gate.give_turn(PullGate::Turn::pacer);
    (void)pull_by_device();
    gate.give_turn(PullGate::Turn::device);
    (void)pull_by_device();
    EXPECT_EQ(gate.asked(), 200);
}

TEST_F(Gate, LeavesTheBusToTheDeviceWhoseTurnItIs) {
    gate.give_turn(PullGate::Turn::device);
    std::vector<float> block(2 * 100);
    gate.pull_by_pacer(block.data(), 100);
    EXPECT_EQ(bus.rendered(), Frames{0});
}

TEST_F(Gate, ClosedGivesNobodyTheBus) {
    gate.give_turn(PullGate::Turn::device);
    gate.close();
    EXPECT_EQ(pull_by_device(), silence);
    EXPECT_EQ(bus.rendered(), Frames{0});
}

} // namespace
} // namespace sonarelle
