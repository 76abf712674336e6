// What the threads of a live output tell each other and the station.
#include "platform/audio/output_shared.h"

#include <gtest/gtest.h>

#include <thread>

namespace sonarelle {
namespace {

using namespace std::chrono_literals;

class SharedOutput : public testing::Test {
protected:
    SharedOutput() {
        shared.on_change = [this](OutputState state) { states.push_back(state); };
        shared.on_gaps = [this](OutputGaps gaps) { told.push_back(gaps); };
    }
    /// Some seconds of a card's requests, each so late.
    void ask_for(Frames span, std::chrono::milliseconds late) {
        for (const Frames end = asked_ + span; asked_ < end; asked_ += milliseconds(20))
            shared.gate.gaps().asked(asked_, GapWatch::Instant{1h} + late +
                                                 std::chrono::milliseconds{asked_.count() / frames_per_millisecond});
    }

    ProgrammeBus bus;
    OutputShared shared{bus};
    std::vector<OutputState> states;
    std::vector<OutputGaps> told;

private:
    Frames asked_;
};

TEST_F(SharedOutput, TellsEachChangeOfItsStateOnce) {
    EXPECT_EQ(shared.state, OutputState::opening);
    for (const auto state : {OutputState::playing, OutputState::playing, OutputState::paced, OutputState::paced})
        shared.set_state(state);
    EXPECT_EQ(states, (std::vector{OutputState::playing, OutputState::paced}));
    EXPECT_EQ(shared.state, OutputState::paced);
}

TEST_F(SharedOutput, TellsGapsOnceWithAllThatWereBefore) {
    ask_for(seconds(8), 0ms);
    EXPECT_FALSE(shared.tell_gaps());
    ask_for(seconds(8), 30ms);
    EXPECT_TRUE(shared.tell_gaps());
    EXPECT_FALSE(shared.tell_gaps());
    ask_for(seconds(8), 50ms);
    EXPECT_TRUE(shared.tell_gaps());
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(told[0].count, 1);
    EXPECT_EQ(told[0].lost, milliseconds(30));
    EXPECT_EQ(told[1].count, 2);
    EXPECT_EQ(told[1].lost, milliseconds(50));
}

TEST_F(SharedOutput, NeedsNobodyWhoListens) {
    OutputShared unheard{bus};
    unheard.set_state(OutputState::playing);
    EXPECT_EQ(unheard.state, OutputState::playing);
    EXPECT_FALSE(unheard.tell_gaps());
}

TEST_F(SharedOutput, SleepsNoMoreOnceItIsToStop) {
    EXPECT_TRUE(shared.sleep_for(1ms));
    EXPECT_TRUE(shared.sleep_until_choice(1ms));
    {
        const MutexLock lock{shared.mutex};
        shared.stopping = true;
    }
    EXPECT_FALSE(shared.sleep_for(1h));
    EXPECT_FALSE(shared.sleep_until_choice(1h));
}

TEST_F(SharedOutput, IsWokenByAChoice) {
    std::thread other{[this] {
        const MutexLock lock{shared.mutex};
        shared.choice_is_new = true;
        shared.wake.notify_all();
    }};
    EXPECT_TRUE(shared.sleep_until_choice(1h));
    other.join();
    EXPECT_TRUE(shared.sleep_until_choice(1h)) << "until it is taken";
}

} // namespace
} // namespace sonarelle
