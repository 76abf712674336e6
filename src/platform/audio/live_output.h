#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "platform/audio/output_device.h"
#include "platform/audio/output_shared.h"
#include "platform/audio/programme_bus.h"

namespace sonarelle {

/// Keeps the programme going: through a device while one pulls, by the monotonic clock within 250 ms when it stops, and
/// through the device again when it is back. A device that has gone is tried every 2 s.
///
/// While the chosen device can't be had, the default one plays, so that the air isn't silent; the chosen one is taken
/// back within some 2 s of its return. What plays is given up only when another device pulls.
///
/// Two threads of its own. The keeper opens, watches and closes the device, and may hang as long as that does. The
/// pacer sees to it that someone pulls, and never waits for the keeper.
class LiveOutput {
public:
    /// `devices` null: paced from the beginning. `on_change` is called on one of the two threads; so is `on_gaps`, with
    /// all gaps since the start: at the first ones, and then once a minute while there are more.
    LiveOutput(ProgrammeBus& bus, std::unique_ptr<OutputDevices> devices, std::string device_name,
               std::function<void(OutputState)> on_change, std::function<void(OutputGaps)> on_gaps = nullptr);
    /// Nobody pulls the bus any more. A keeper that hangs is left behind with what it holds.
    ~LiveOutput();
    LiveOutput(const LiveOutput&) = delete;
    LiveOutput& operator=(const LiveOutput&) = delete;

    [[nodiscard]] OutputState state() const { return shared_->state.load(std::memory_order_acquire); }

    // From any thread; none of these waits for a device.

    /// Goes over to another device, on the air; empty is the default one. Without `devices` it changes nothing.
    void choose(std::string device_name);
    [[nodiscard]] std::string chosen() const;
    /// The device that is open: the chosen one, or empty for the default one that plays in its place; nothing where
    /// there is none.
    [[nodiscard]] std::optional<std::string> playing_on() const;
    /// The devices that there are, as of the last 2 s or so. Empty before the first try is over.
    [[nodiscard]] std::vector<std::string> device_names() const;

private:
    using Clock = std::chrono::steady_clock;

    static void pace(OutputShared& shared);
    static void wait_for_first_try(OutputShared& shared);
    static void watch_pulls(OutputShared& shared);
    static void pace_until_device_pulls(OutputShared& shared);

    std::shared_ptr<OutputShared> shared_;
    std::thread keeper_;
    std::thread pacer_;
};

} // namespace sonarelle
