#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <thread>

#include "platform/audio/output_device.h"
#include "platform/audio/programme_bus.h"
#include "platform/audio/pull_gate.h"
#include "platform/audio/thread_annotations.h"

namespace sonarelle {

enum class OutputState {
    opening, ///< The first try is under way; time hasn't begun.
    playing, ///< The device pulls.
    paced,   ///< There is no device that pulls: the monotonic clock does.
};

/// Keeps the programme going: through a device while one pulls, by the monotonic clock within 250 ms when it stops, and
/// through the device again when it is back. A device that has gone is tried every 2 s.
///
/// Two threads of its own. The keeper opens, watches and closes the device, and may hang as long as that does. The
/// pacer sees to it that someone pulls, and never waits for the keeper.
class LiveOutput {
public:
    /// `devices` null: paced from the beginning. `on_change` is called on one of the two threads.
    LiveOutput(ProgrammeBus& bus, std::unique_ptr<OutputDevices> devices, std::string device_name,
               std::function<void(OutputState)> on_change);
    /// Nobody pulls the bus any more. A keeper that hangs is left behind with what it holds.
    ~LiveOutput();
    LiveOutput(const LiveOutput&) = delete;
    LiveOutput& operator=(const LiveOutput&) = delete;

    [[nodiscard]] OutputState state() const { return shared_->state.load(std::memory_order_acquire); }

private:
    using Clock = std::chrono::steady_clock;

    /// What the threads share, for as long as one of them lives.
    struct Shared {
        explicit Shared(ProgrammeBus& bus) : gate{bus} {}

        bool sleep_for(std::chrono::milliseconds time);
        void set_state(OutputState next);

        PullGate gate;
        std::atomic<OutputState> state{OutputState::opening};
        std::atomic<bool> device_open{false};
        std::atomic<bool> first_try_over{false};
        std::atomic<bool> keeper_ended{false};
        std::function<void(OutputState)> on_change; // by the pacer alone
        std::unique_ptr<OutputDevices> devices;     // the keeper's
        std::string device_name;

        Mutex mutex;
        Condition wake;
        bool stopping SONARELLE_GUARDED_BY(mutex) = false;
    };

    static void keep_device(const std::shared_ptr<Shared>& shared);
    [[nodiscard]] static std::unique_ptr<OutputDevice> try_to_open(const std::shared_ptr<Shared>& shared);
    static void watch_device(Shared& shared, const OutputDevice& device);
    static void pace(Shared& shared);
    static void wait_for_first_try(Shared& shared);
    static void watch_pulls(Shared& shared);
    static void pace_until_device_pulls(Shared& shared);

    std::shared_ptr<Shared> shared_;
    std::thread keeper_;
    std::thread pacer_;
};

} // namespace sonarelle
