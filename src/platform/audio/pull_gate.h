#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>

#include "platform/audio/gap_watch.h"
#include "platform/audio/programme_bus.h"

namespace sonarelle {

/// The one door to the bus for those who pull it. At any time one of them has the turn; the others get silence.
/// Invariant: the bus is rendered by who holds `busy`, and only while the turn is his.
class PullGate {
public:
    enum class Turn { nobody, device, pacer };

    explicit PullGate(ProgrammeBus& bus)
        : bus_{&bus} {}

    /// From a device's callback: never waits. Silence while the turn is another's, or for the one block in which it
    /// changes.
    void pull_by_device(float* out, std::size_t frames) noexcept;
    /// From the pacing thread: waits for the end of a callback's block.
    void pull_by_pacer(float* out, std::size_t frames) noexcept;

    void give_turn(Turn turn) noexcept { turn_.store(turn, std::memory_order_release); }
    [[nodiscard]] Turn turn() const noexcept { return turn_.load(std::memory_order_acquire); }
    /// Nobody gets to the bus any more, and nobody is in it when this returns.
    void close() noexcept;

    /// How many frames devices have asked for, with those that stayed silent.
    [[nodiscard]] std::int64_t asked() const noexcept { return asked_.load(std::memory_order_acquire); }

    /// When one last asked.
    [[nodiscard]] std::chrono::steady_clock::time_point last_asked() const noexcept {
        return last_asked_.load(std::memory_order_relaxed);
    }
    /// Of the device that has the turn.
    [[nodiscard]] GapWatch& gaps() noexcept { return gaps_; }

    /// How long the bus may rest behind a burst before the next one is late.
    [[nodiscard]] std::chrono::milliseconds reach_time() const noexcept {
        return std::chrono::milliseconds{bus_->pull_reach().count() / frames_per_millisecond};
    }

private:
    void enter() noexcept;
    bool render_if(Turn mine, float* out, std::size_t frames, std::chrono::steady_clock::time_point now) noexcept;

    ProgrammeBus* bus_;
    std::atomic<Turn> turn_{Turn::nobody};
    std::atomic<bool> busy_{false};
    std::atomic<std::int64_t> asked_{0};
    std::atomic<std::chrono::steady_clock::time_point> last_asked_{};
    GapWatch gaps_;
};

} // namespace sonarelle
