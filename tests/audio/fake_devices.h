#pragma once

#include <atomic>
#include <chrono>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/audio/output_device.h"
#include "platform/audio/programme_bus.h"

namespace sonarelle {

/// A sound card that pulls 10 ms every 10 ms, or greater blocks and several at once, on a thread of its own and keeps
/// what it got, in its place by the bus's count; with switches for what cards do wrong.
class FakeCard {
public:
    explicit FakeCard(const ProgrammeBus& bus)
        : bus_{bus} {}

    std::atomic<bool> absent{false};  ///< It can't be opened.
    std::atomic<bool> dead{false};    ///< It stops pulling and says that it has gone.
    std::atomic<bool> hanging{false}; ///< It stops pulling and says nothing.
    std::atomic<int> asked_for{0};    ///< How often it was to be opened.
    std::atomic<int> opened{0};
    std::atomic<int> falls_behind{0}; ///< Milliseconds that its sound comes late, once and for good: a gap.
    std::atomic<int> open{0};         ///< How often it is open now.
    std::atomic<std::size_t> block_frames{480};
    std::atomic<int> blocks_at_once{1};

    [[nodiscard]] std::chrono::nanoseconds burst_time() const;
    void pull_block(const PullFrames& pull);
    /// By frames of the bus; silence where the card got nothing.
    [[nodiscard]] std::vector<float> heard() const;

private:
    const ProgrammeBus& bus_;
    mutable std::mutex mutex_;
    std::vector<float> heard_;
};

/// The cards of a machine; the one without a name is the default one.
class FakeDevices final : public OutputDevices {
public:
    using Cards = std::map<std::string, std::shared_ptr<FakeCard>>;

    explicit FakeDevices(Cards cards)
        : cards_{std::move(cards)} {}
    [[nodiscard]] std::vector<std::string> names() override;
    [[nodiscard]] std::unique_ptr<OutputDevice> open(const std::string& name, PullFrames pull) override;

private:
    Cards cards_;
};

} // namespace sonarelle
