#include "platform/audio/live_output.h"

#include <algorithm>
#include <vector>

#include "platform/audio/output_keeper.h"

namespace sonarelle {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds watch_every = 25ms;
// Until the clock takes over, within 250 ms: a device plays on for a while from what it has.
constexpr std::chrono::milliseconds longest_silence = 200ms;
constexpr std::chrono::milliseconds settles_in = 1000ms;      // a server that has just been opened takes some blocks
constexpr std::chrono::milliseconds settling_silence = 500ms; // at once, and then none for a while
constexpr std::chrono::seconds gaps_told_every = 60s;
constexpr std::chrono::milliseconds first_try_takes = 2000ms;
constexpr std::chrono::milliseconds leave_takes = 1000ms;
constexpr std::size_t paced_frames = 1024;
constexpr std::chrono::nanoseconds paced_time{1'000'000'000LL * paced_frames / frame_rate};

} // namespace

LiveOutput::LiveOutput(ProgrammeBus& bus, std::unique_ptr<OutputDevices> devices, std::string device_name,
                       std::function<void(OutputState)> on_change, std::function<void(OutputGaps)> on_gaps)
    : shared_{std::make_shared<OutputShared>(bus)} {
    shared_->on_change = std::move(on_change);
    shared_->on_gaps = std::move(on_gaps);
    choose(std::move(device_name));
    if (devices != nullptr)
        keeper_ = std::thread{[shared = shared_, owned = std::move(devices)]() mutable {
            OutputKeeper{std::move(shared), std::move(owned)}.run();
        }};
    else
        shared_->first_try_over = true;
    pacer_ = std::thread{[shared = shared_] { pace(*shared); }};
}

LiveOutput::~LiveOutput() {
    {
        const MutexLock lock{shared_->mutex};
        shared_->stopping = true;
    }
    shared_->wake.notify_all();
    pacer_.join();
    shared_->gate.close();
    if (!keeper_.joinable())
        return;
    const auto limit = Clock::now() + leave_takes;
    while (!shared_->keeper_ended && Clock::now() < limit)
        std::this_thread::sleep_for(1ms);
    if (shared_->keeper_ended)
        keeper_.join();
    else
        keeper_.detach();
}

void LiveOutput::choose(std::string device_name) {
    {
        const MutexLock lock{shared_->mutex};
        shared_->chosen = std::move(device_name);
        shared_->choice_is_new = true;
    }
    shared_->wake.notify_all();
}

std::string LiveOutput::chosen() const {
    const MutexLock lock{shared_->mutex};
    return shared_->chosen;
}

std::optional<std::string> LiveOutput::playing_on() const {
    const MutexLock lock{shared_->mutex};
    return shared_->playing_on;
}

std::vector<std::string> LiveOutput::device_names() const {
    const MutexLock lock{shared_->mutex};
    return shared_->names;
}

void LiveOutput::pace(OutputShared& shared) {
    wait_for_first_try(shared);
    while (shared.sleep_for(0ms)) {
        if (shared.device_open)
            watch_pulls(shared);
        else
            pace_until_device_pulls(shared);
    }
}

// A programme shouldn't lose its first notes to a server that is slow to start.
void LiveOutput::wait_for_first_try(OutputShared& shared) {
    const auto limit = Clock::now() + first_try_takes;
    const MutexLock lock{shared.mutex};
    while (!shared.stopping && !shared.first_try_over && Clock::now() < limit)
        shared.wake.wait_for(shared.mutex, watch_every);
}

// While the device pulls, this thread only looks now and then. Returns when it has stopped.
void LiveOutput::watch_pulls(OutputShared& shared) {
    shared.gate.give_turn(PullGate::Turn::device);
    std::int64_t asked = shared.gate.asked();
    auto last_pull = Clock::now();
    int on_air = shared.on_air;
    auto settled_at = last_pull + settles_in;
    auto gaps_told_at = last_pull - gaps_told_every;
    std::chrono::milliseconds patience = settling_silence;
    while (shared.sleep_for(watch_every) && shared.device_open && Clock::now() - last_pull < patience) {
        if (const int now_on_air = shared.on_air; now_on_air != on_air) {
            on_air = now_on_air;
            settled_at = Clock::now() + settles_in;
            shared.gate.gaps().restart();
        }
        const auto least = Clock::now() < settled_at ? settling_silence : longest_silence;
        patience = std::max(least, watch_every + shared.gate.reach_time());
        const std::int64_t now_asked = shared.gate.asked();
        if (now_asked == asked)
            continue;
        asked = now_asked;
        last_pull = shared.gate.last_asked();
        shared.set_state(OutputState::playing);
        if (last_pull >= gaps_told_at + gaps_told_every && shared.tell_gaps())
            gaps_told_at = last_pull;
    }
    const bool stopped_in_order = !shared.sleep_for(0ms);
    if (!stopped_in_order)
        pace_until_device_pulls(shared);
}

// Two blocks asked for by a device that is open say that it is back.
void LiveOutput::pace_until_device_pulls(OutputShared& shared) {
    shared.gate.give_turn(PullGate::Turn::pacer);
    shared.set_state(OutputState::paced);
    std::vector<float> block(2 * paced_frames);
    std::int64_t asked_before = shared.gate.asked();
    auto due = Clock::now();
    for (;;) {
        shared.gate.pull_by_pacer(block.data(), paced_frames);
        due = std::max(due + paced_time, Clock::now() - longest_silence); // a suspended machine doesn't catch up
        const auto rest = std::chrono::ceil<std::chrono::milliseconds>(due - Clock::now());
        if (!shared.sleep_for(std::max(rest, 0ms)))
            return;
        if (!shared.device_open)
            asked_before = shared.gate.asked();
        else if (shared.gate.asked() - asked_before >= std::int64_t{2 * paced_frames})
            return;
    }
}

} // namespace sonarelle
