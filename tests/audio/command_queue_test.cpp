// The way of commands to the callback, and the way back of what it has let go.
#include "platform/audio/command_queue.h"

#include <gtest/gtest.h>

#include <thread>

namespace sonarelle {
namespace {

class Commands : public testing::Test {
protected:
    void push(int count) {
        for (int command = 0; command < count; ++command)
            queue->push({.at = Frames{pushed_++}});
    }
    /// Takes all that are in the queue and expects them in order.
    int take() {
        int count = 0;
        for (const BusCommand* command = queue->front(); command != nullptr; command = queue->front(), ++count) {
            EXPECT_EQ(command->at, Frames{taken_++});
            queue->pop();
        }
        return count;
    }

    std::unique_ptr<CommandQueue> queue = std::make_unique<CommandQueue>();

private:
    std::int64_t pushed_ = 0;
    std::int64_t taken_ = 0;
};

TEST_F(Commands, ComeInOrder) {
    EXPECT_EQ(queue->front(), nullptr);
    for (const int count : {1, 700, 700, 1024, 3}) {
        push(count);
        EXPECT_EQ(take(), count);
    }
}

TEST_F(Commands, WaitWhileThereIsNoRoom) {
    push(3000);
    EXPECT_EQ(take(), 1024);
    push(1);
    EXPECT_EQ(take(), 1024);
    queue->flush();
    EXPECT_EQ(take(), 953);
    queue->flush();
    EXPECT_EQ(take(), 0);
}

TEST_F(Commands, ComeInOrderToAnotherThread) {
    constexpr int all = 200'000;
    std::atomic<bool> all_taken{false};
    std::thread callback{[&] {
        for (int taken = 0; taken < all;)
            taken += take();
        all_taken = true;
    }};
    push(all);
    while (!all_taken)
        queue->flush();
    callback.join();
    EXPECT_EQ(queue->front(), nullptr);
}

/// Tells when it is freed.
class Counted final : public Retirable {
public:
    explicit Counted(int& alive)
        : alive_{alive} {
        ++alive_;
    }
    ~Counted() override { --alive_; }

private:
    int& alive_;
};

TEST(RetiredList, FreesAllThatWasGivenToItOnceItIsAsked) {
    int alive = 0;
    RetiredList retired;
    for (const int count : {1, 5, 300}) {
        for (int object = 0; object < count; ++object)
            retired.push(*new Counted{alive});
        EXPECT_EQ(alive, count);
        retired.free_all();
        EXPECT_EQ(alive, 0);
    }
}

TEST(RetiredList, FreesWhatIsLeftWhenItGoes) {
    int alive = 0;
    {
        RetiredList retired;
        retired.push(*new Counted{alive});
        retired.push(*new Counted{alive});
    }
    EXPECT_EQ(alive, 0);
}

} // namespace
} // namespace sonarelle
