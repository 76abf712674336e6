#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "platform/audio/output_device.h"
#include "platform/audio/programme_bus.h"

namespace sonarelle {

/// A sound card that pulls 10 ms every 10 ms on a thread of its own and keeps what it got, in its place by the bus's
/// count; with switches for what cards do wrong.
class FakeCard {
public:
    explicit FakeCard(const ProgrammeBus& bus) : bus_{bus} {}

    std::atomic<bool> absent{false};  ///< It can't be opened.
    std::atomic<bool> dead{false};    ///< It stops pulling and says that it has gone.
    std::atomic<bool> hanging{false}; ///< It stops pulling and says nothing.
    std::atomic<int> opened{0};

    void pull_block(const PullFrames& pull);
    /// By frames of the bus; silence where the card got nothing.
    [[nodiscard]] std::vector<float> heard() const;

private:
    const ProgrammeBus& bus_;
    mutable std::mutex mutex_;
    std::vector<float> heard_;
};

class FakeDevices final : public OutputDevices {
public:
    explicit FakeDevices(std::shared_ptr<FakeCard> card) : card_{std::move(card)} {}
    [[nodiscard]] std::vector<std::string> names() override { return {"Carte"}; }
    [[nodiscard]] std::unique_ptr<OutputDevice> open(const std::string& name, PullFrames pull) override;

private:
    std::shared_ptr<FakeCard> card_;
};

} // namespace sonarelle
