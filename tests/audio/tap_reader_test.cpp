#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "platform/audio/tap_reader.h"

namespace sonarelle {
namespace {

// Frames that count: the left channel tells the bus frame, the right one its negative.
std::vector<float> counting(std::int64_t first, std::size_t count) {
    std::vector<float> frames;
    for (std::size_t frame = 0; frame < count; ++frame) {
        const auto number = static_cast<float>(first + static_cast<std::int64_t>(frame));
        frames.insert(frames.end(), {number, -number});
    }
    return frames;
}

// Sends counting frames as a callback does.
class Sender {
public:
    explicit Sender(BusTaps& taps)
        : taps_{taps} {}
    void send(std::size_t count) {
        taps_.take(counting(sent, count), Level{}, Frames{sent});
        sent += static_cast<std::int64_t>(count);
    }
    std::int64_t sent = 0;

private:
    BusTaps& taps_;
};

class TapReaderTest : public testing::Test {
protected:
    [[nodiscard]] std::vector<float> read() {
        const auto frames = reader.read();
        return {frames.begin(), frames.end()};
    }

    std::unique_ptr<BusTaps> taps = std::make_unique<BusTaps>();
    Sender sender{*taps};
    TapReader reader{*taps};
};

TEST_F(TapReaderTest, HasNothingBeforeTheFirstFrame) {
    EXPECT_TRUE(read().empty());
}

TEST_F(TapReaderTest, GetsEveryFrameOnceWhenItComesTwentyTimesASecond) {
    std::vector<float> all;
    for (int visit = 0; visit < 200; ++visit) {
        for (const std::size_t block : {1024U, 1024U, 352U})
            sender.send(block);
        const auto frames = read();
        EXPECT_EQ(frames.size(), 2U * 2400) << visit;
        all.insert(all.end(), frames.begin(), frames.end());
    }
    EXPECT_EQ(all, counting(0, 200 * 2400));
}

TEST_F(TapReaderTest, GetsNothingTwice) {
    sender.send(500);
    static_cast<void>(read());
    EXPECT_TRUE(read().empty());
}

TEST_F(TapReaderTest, BeginsWithWhatComesAfterItWasMade) {
    sender.send(700);
    TapReader second{*taps};
    sender.send(100);
    const auto frames = second.read();
    EXPECT_EQ(std::vector<float>(frames.begin(), frames.end()), counting(700, 100));
}

TEST_F(TapReaderTest, ComingSixHundredMillisecondsLateItLosesNothing) {
    for (int block = 0; block < 28; ++block)
        sender.send(1024);
    EXPECT_EQ(read(), counting(0, 28 * 1024));
    EXPECT_EQ(reader.lost(), Frames{});
}

TEST_F(TapReaderTest, ComingLaterItLosesTheOldestAndCountsThem) {
    for (int block = 0; block < 100; ++block)
        sender.send(1000);
    EXPECT_EQ(read(), counting(100'000 - 32768, 32768));
    EXPECT_EQ(reader.lost(), Frames{100'000 - 32768});
}

TEST_F(TapReaderTest, ABlockGreaterThanWhatIsKeptLeavesItsEnd) {
    sender.send(40'000);
    EXPECT_EQ(read(), counting(40'000 - 32768, 32768));
}

// The frames' numbers stay below 2^24, where a float still tells them apart.
TEST_F(TapReaderTest, WhatItGetsIsWholeAndInPlaceWhileTheCallbackWritesOverIt) {
    constexpr std::int64_t all = 15'000'000;
    std::atomic<bool> done{false};
    std::thread callback{[&] {
        while (sender.sent < all)
            sender.send(4096);
        done = true;
    }};
    std::int64_t got = 0;
    std::int64_t wrong = 0;
    for (bool last = false; !last;) {
        last = done;
        const auto frames = reader.read();
        const std::int64_t first = got + reader.lost().count();
        for (std::size_t frame = 0; frame < frames.size() / 2; ++frame) {
            const auto number = static_cast<float>(first + static_cast<std::int64_t>(frame));
            wrong += frames[2 * frame] != number || frames[2 * frame + 1] != -number ? 1 : 0;
        }
        got += static_cast<std::int64_t>(frames.size() / 2);
    }
    callback.join();
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(got + reader.lost().count(), sender.sent);
}

} // namespace
} // namespace sonarelle
