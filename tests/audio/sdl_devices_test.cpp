// The machine's cards, through the driver that writes what it gets into a file.
#include "platform/audio/sdl_devices.h"

#include <gtest/gtest.h>

#include <SDL2/SDL.h>
#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <mutex>
#include <thread>

#include "platform/failure.h"
#include "sound_fixture.h"

namespace sonarelle {
namespace {

class CardThatWrites : public testing::Test {
protected:
    CardThatWrites() {
        ::setenv("SDL_AUDIODRIVER", "disk", 1);
        ::setenv("SDL_DISKAUDIOFILE", written.c_str(), 1);
        ::setenv("SDL_DISKAUDIODELAY", "0", 1);
    }
    ~CardThatWrites() override {
        for (const char* name : {"SDL_AUDIODRIVER", "SDL_DISKAUDIOFILE", "SDL_DISKAUDIODELAY"})
            ::unsetenv(name);
    }

    /// None of them is silence.
    [[nodiscard]] static float sample_at(std::size_t place) { return static_cast<float>(place + 1) / 1'000'000.0F; }

    /// Counts the programme's samples, whatever the blocks, and notes these.
    void pull(float* out, std::size_t frames) {
        const std::lock_guard lock{mutex_};
        for (std::size_t sample = 0; sample < 2 * frames; ++sample)
            out[sample] = sample_at(pulled_ + sample);
        pulled_ += 2 * frames;
        blocks.push_back(frames);
        news_.notify_all();
    }
    [[nodiscard]] std::unique_ptr<OutputDevice> open(const std::string& name = "") {
        return devices.open(name, [this](float* out, std::size_t frames) { pull(out, frames); });
    }
    [[nodiscard]] std::size_t block_count() {
        const std::lock_guard lock{mutex_};
        return blocks.size();
    }
    void wait_for_blocks(std::size_t count) {
        std::unique_lock lock{mutex_};
        news_.wait(lock, [&] { return blocks.size() >= count; });
    }
    [[nodiscard]] std::vector<float> recorded() const {
        std::ifstream file{written, std::ios::binary};
        const std::string bytes{std::istreambuf_iterator<char>{file}, {}};
        std::vector<float> samples(bytes.size() / sizeof(float));
        std::memcpy(samples.data(), bytes.data(), samples.size() * sizeof(float));
        return samples;
    }

    SoundFolder folder;
    const std::string missing = folder.path("nulle part/Régie"); // this driver makes a file of any other name
    const std::string written = folder.path("card");
    SdlDevices devices;
    std::vector<std::size_t> blocks;

private:
    std::mutex mutex_;
    std::condition_variable news_;
    std::size_t pulled_ = 0;
};

TEST_F(CardThatWrites, GetsTheProgrammeSampleForSample) {
    auto device = open();
    wait_for_blocks(5);
    EXPECT_TRUE(device->is_there());
    device.reset();
    const auto heard = recorded();
    const auto begin = std::ranges::find_if(heard, [](float sample) { return sample != 0.0F; });
    EXPECT_EQ((begin - heard.begin()) % (2 * 2048), 0) << "a card that is opened may take silence first";
    ASSERT_GE(heard.end() - begin, 2 * 2048 * 4);
    for (auto sample = begin; sample != heard.end(); ++sample)
        ASSERT_EQ(*sample, sample_at(static_cast<std::size_t>(sample - begin))) << sample - begin;
    EXPECT_EQ(blocks, std::vector<std::size_t>(blocks.size(), 2048));
}

TEST_F(CardThatWrites, PullsNoMoreOnceItIsClosed) {
    open().reset();
    const std::size_t before = block_count();
    std::atomic<int> of_the_next{0};
    const auto next = devices.open("", [&](float*, std::size_t) { ++of_the_next; });
    while (of_the_next < 5)
        std::this_thread::yield();
    EXPECT_EQ(block_count(), before);
}

TEST_F(CardThatWrites, IsTheOnlyOneThatIsNamed) {
    const auto names = devices.names();
    ASSERT_EQ(names.size(), 1U);
    EXPECT_FALSE(names.front().empty());
    EXPECT_EQ(devices.names(), names);
    const auto device = open(names.front());
    wait_for_blocks(1);
}

TEST_F(CardThatWrites, LeavesAnotherNameUnavailable) {
    try {
        static_cast<void>(open(missing));
        FAIL() << "there is no such card";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number, FailureNumber::device_unavailable);
        EXPECT_EQ(failure.source, missing);
    }
}

TEST_F(CardThatWrites, PlaysOnWhileAnotherOneIsLookedFor) {
    const auto device = open();
    wait_for_blocks(1);
    EXPECT_THROW(static_cast<void>(open(missing)), Failure);
    wait_for_blocks(block_count() + 2);
    EXPECT_TRUE(device->is_there());
}

TEST_F(CardThatWrites, IsKnownByTheProgramsNameAndLeavesTheSignalsToIt) {
    static_cast<void>(devices.names());
    EXPECT_STREQ(SDL_GetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME), "Sonarelle");
    EXPECT_STREQ(SDL_GetHint(SDL_HINT_NO_SIGNAL_HANDLERS), "1");
}

TEST_F(CardThatWrites, IsGivenBackWithTheDevices) {
    {
        SdlDevices others;
        EXPECT_FALSE(others.names().empty());
        EXPECT_NE(SDL_WasInit(SDL_INIT_AUDIO), 0U);
    }
    EXPECT_EQ(SDL_WasInit(SDL_INIT_AUDIO), 0U);
}

TEST_F(CardThatWrites, OfADriverThatIsNotThereIsUnavailable) {
    ::setenv("SDL_AUDIODRIVER", "aucun", 1);
    EXPECT_TRUE(devices.names().empty());
    EXPECT_THROW(static_cast<void>(open()), Failure);
    ::setenv("SDL_AUDIODRIVER", "disk", 1);
    const auto device = open(); // a server that came later
    wait_for_blocks(1);
}

TEST_F(CardThatWrites, IsLookedForAnewOnceNoneIsOpen) {
    open().reset();
    ::setenv("SDL_AUDIODRIVER", "aucun", 1);
    EXPECT_FALSE(devices.names().empty()) << "the names come from the connection that stands";
    EXPECT_THROW(static_cast<void>(open()), Failure);
}

TEST(SdlDevices, AskForLargeBuffersUnlessTheUserSaysOtherwise) {
    ::unsetenv("PULSE_LATENCY_MSEC");
    SdlDevices::ask_for_large_buffers();
    EXPECT_STREQ(std::getenv("PULSE_LATENCY_MSEC"), "150");
    ::setenv("PULSE_LATENCY_MSEC", "60", 1);
    SdlDevices::ask_for_large_buffers();
    EXPECT_STREQ(std::getenv("PULSE_LATENCY_MSEC"), "60");
    ::unsetenv("PULSE_LATENCY_MSEC");
}

} // namespace
} // namespace sonarelle
