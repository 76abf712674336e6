#include "platform/audio/live_output.h"

#include <algorithm>
#include <vector>

#include "platform/failure.h"

namespace sonarelle {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds retry_every = 2000ms;
constexpr std::chrono::milliseconds watch_every = 50ms;
constexpr std::chrono::milliseconds longest_silence =
    150ms;                                               // of a device with short blocks, until the clock takes over
constexpr std::chrono::milliseconds settles_in = 1000ms; // a server that has just been opened takes some blocks
constexpr std::chrono::milliseconds settling_silence = 500ms; // at once, and then none for a while
constexpr std::chrono::milliseconds given_up_after = 4000ms;  // a device that hangs is opened anew
constexpr std::chrono::milliseconds first_try_takes = 2000ms;
constexpr std::chrono::milliseconds leave_takes = 1000ms;
constexpr std::size_t paced_frames = 1024;
constexpr std::chrono::nanoseconds paced_time{1'000'000'000LL * paced_frames / frame_rate};

} // namespace

LiveOutput::LiveOutput(ProgrammeBus& bus, std::unique_ptr<OutputDevices> devices, std::string device_name,
                       std::function<void(OutputState)> on_change)
    : shared_{std::make_shared<Shared>(bus)} {
    shared_->on_change = std::move(on_change);
    shared_->devices = std::move(devices);
    shared_->device_name = std::move(device_name);
    if (shared_->devices != nullptr)
        keeper_ = std::thread{[shared = shared_] { keep_device(shared); }};
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

// False when it is time to stop.
bool LiveOutput::Shared::sleep_for(std::chrono::milliseconds time) {
    const auto until = Clock::now() + time;
    const MutexLock lock{mutex};
    while (!stopping && Clock::now() < until)
        wake.wait_until(mutex, until);
    return !stopping;
}

void LiveOutput::Shared::set_state(OutputState next) {
    if (state.exchange(next) != next && on_change)
        on_change(next);
}

// --- The keeper ---

void LiveOutput::keep_device(const std::shared_ptr<Shared>& shared) {
    do {
        auto device = try_to_open(shared);
        shared->device_open = device != nullptr;
        shared->first_try_over = true;
        shared->wake.notify_all();
        if (device != nullptr)
            watch_device(*shared, *device);
        shared->device_open = false;
    } while (shared->sleep_for(retry_every));
    shared->devices.reset();
    shared->keeper_ended = true;
}

// The callback holds on to what it needs: it may come once more while the device hangs in its end.
std::unique_ptr<OutputDevice> LiveOutput::try_to_open(const std::shared_ptr<Shared>& shared) {
    try {
        return shared->devices->open(shared->device_name, [shared](float* out, std::size_t frames) {
            shared->gate.pull_by_device(out, frames);
        });
    } catch (const Failure&) {
        return nullptr;
    }
}

// Until the device has gone, has hung for long, or the programme ends.
void LiveOutput::watch_device(Shared& shared, const OutputDevice& device) {
    std::int64_t asked = shared.gate.asked();
    auto last_pull = Clock::now();
    while (shared.sleep_for(2 * watch_every) && device.is_there() && Clock::now() - last_pull < given_up_after)
        if (const std::int64_t now_asked = shared.gate.asked(); now_asked != asked) {
            asked = now_asked;
            last_pull = Clock::now();
        }
}

// --- The pacer ---

void LiveOutput::pace(Shared& shared) {
    wait_for_first_try(shared);
    while (shared.sleep_for(0ms)) {
        if (shared.device_open)
            watch_pulls(shared);
        else
            pace_until_device_pulls(shared);
    }
}

// A programme shouldn't lose its first notes to a server that is slow to start.
void LiveOutput::wait_for_first_try(Shared& shared) {
    const auto limit = Clock::now() + first_try_takes;
    const MutexLock lock{shared.mutex};
    while (!shared.stopping && !shared.first_try_over && Clock::now() < limit)
        shared.wake.wait_for(shared.mutex, watch_every);
}

// While the device pulls, this thread only looks now and then. Returns when it has stopped.
void LiveOutput::watch_pulls(Shared& shared) {
    shared.gate.give_turn(PullGate::Turn::device);
    std::int64_t asked = shared.gate.asked();
    auto last_pull = Clock::now();
    const auto settled_at = last_pull + settles_in;
    std::chrono::milliseconds patience = settling_silence;
    while (shared.sleep_for(watch_every) && shared.device_open && Clock::now() - last_pull < patience) {
        const auto least = Clock::now() < settled_at ? settling_silence : longest_silence;
        patience = std::max(least, watch_every + 2 * shared.gate.block_time());
        const std::int64_t now_asked = shared.gate.asked();
        if (now_asked == asked)
            continue;
        asked = now_asked;
        last_pull = Clock::now();
        shared.set_state(OutputState::playing);
    }
    const bool stopped_in_order = !shared.sleep_for(0ms);
    if (!stopped_in_order)
        pace_until_device_pulls(shared);
}

// Two blocks asked for by a device that is open say that it is back.
void LiveOutput::pace_until_device_pulls(Shared& shared) {
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
