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

TEST_F(Gate, RendersBlockAfterBlockForWhoHasTheTurn) {
    std::vector<float> block(2 * 50);
    gate.give_turn(PullGate::Turn::device);
    (void)pull_by_device();
    (void)pull_by_device();
    EXPECT_EQ(bus.rendered(), Frames{200});
    gate.give_turn(PullGate::Turn::pacer);
    gate.pull_by_pacer(block.data(), 50);
    gate.pull_by_pacer(block.data(), 50);
    EXPECT_EQ(bus.rendered(), Frames{300});
    gate.give_turn(PullGate::Turn::device);
    (void)pull_by_device();
    EXPECT_EQ(bus.rendered(), Frames{400});
}

TEST_F(Gate, KnowsWhenADeviceLastAsked) {
    for (const auto turn : {PullGate::Turn::device, PullGate::Turn::pacer}) {
        gate.give_turn(turn);
        const auto before = std::chrono::steady_clock::now();
        (void)pull_by_device();
        EXPECT_GE(gate.last_asked(), before);
        EXPECT_LE(gate.last_asked(), std::chrono::steady_clock::now());
    }
}

TEST_F(Gate, CountsTheBurstsOfWhatItRenders) {
    gate.give_turn(PullGate::Turn::pacer);
    (void)pull_by_device();
    EXPECT_EQ(bus.bursts().greatest(), Frames{0});
    gate.give_turn(PullGate::Turn::device);
    (void)pull_by_device();
    EXPECT_GE(bus.bursts().greatest(), Frames{100});
    EXPECT_EQ(gate.reach_time(), std::chrono::milliseconds{bus.pull_reach().count() / 48});
}

TEST_F(Gate, TakesADeviceThatGotSilenceForOneWithAPaceOfItsOwn) {
    Frames asked;
    const auto ask_for_eight_seconds = [&](std::chrono::milliseconds late) {
        for (const Frames end = asked + seconds(8); asked < end; asked += milliseconds(20))
            gate.gaps().asked(asked, GapWatch::Instant{std::chrono::hours{1}} + late +
                                         std::chrono::milliseconds{asked.count() / frames_per_millisecond});
    };
    ask_for_eight_seconds(std::chrono::milliseconds{0});
    (void)pull_by_device();
    ask_for_eight_seconds(std::chrono::milliseconds{100});
    EXPECT_EQ(gate.gaps().gaps().count, 0);
    ask_for_eight_seconds(std::chrono::milliseconds{200});
    EXPECT_EQ(gate.gaps().gaps().count, 1);
}

TEST_F(Gate, ClosedGivesNobodyTheBus) {
    gate.give_turn(PullGate::Turn::device);
    gate.close();
    EXPECT_EQ(pull_by_device(), silence);
    EXPECT_EQ(bus.rendered(), Frames{0});
}

} // namespace
} // namespace sonarelle
