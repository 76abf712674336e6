#pragma once

#include <atomic>
#include <cstdint>

#include "platform/audio/bus_taps.h"
#include "platform/audio/command_queue.h"
#include "platform/audio/limiter.h"
#include "platform/audio/pull_bursts.h"
#include "platform/audio/retired.h"
#include "platform/programme_silence.h"
#include "platform/units.h"

namespace sonarelle {

/// The sum of all graphs that run: the programme. It counts the frames that it has made; this count is the station's
/// time.
///
/// Three sides. The window thread sends commands, each with the frame on which it is heard. The output (a card's
/// callback, or a loop) calls `render`, from one thread at a time. Anyone reads the count and the taps.
/// What comes out doesn't depend on how the frames are cut into blocks.
class ProgrammeBus {
public:
    ProgrammeBus() = default;
    ~ProgrammeBus();
    ProgrammeBus(const ProgrammeBus&) = delete;
    ProgrammeBus& operator=(const ProgrammeBus&) = delete;

    /// Makes the next `frames` frames, two floats each. Allocates nothing, waits for nothing, calls no system.
    void render(float* out, std::size_t frames) noexcept;

    [[nodiscard]] Frames rendered() const { return Frames{rendered_.load(std::memory_order_acquire)}; }
    /// The greatest block asked for so far.
    [[nodiscard]] Frames greatest_block() const { return Frames{greatest_block_.load(std::memory_order_relaxed)}; }
    /// How far the count may go before anyone can act again: by the output's greatest burst, and by one block more,
    /// since what is sent in the midst of a block is heard from the next one on.
    [[nodiscard]] Frames pull_reach() const {
        return std::max(bursts_.greatest(), greatest_block()) + greatest_block();
    }
    /// For who pulls.
    [[nodiscard]] PullBursts& bursts() { return bursts_; }
    [[nodiscard]] BusTaps& taps() { return taps_; }
    /// When what it made was silent.
    [[nodiscard]] ProgrammeSilence silence() const;

    // From the window thread.

    /// Commands come in the order of their frames. One whose frame has gone by takes effect at once.
    void send(const BusCommand& command) { commands_.push(command); }
    /// Frees what the bus no longer uses, and sends on what didn't fit before.
    void housekeep();
    /// How many commands came to the bus after their frame had been rendered.
    [[nodiscard]] std::int64_t late_commands() const { return late_.load(std::memory_order_relaxed); }

private:
    /// What the callback alone touches.
    struct RealTime {
        Voice* first = nullptr;
        Frames position;
        Limiter limiter;
    };

    void obey(const BusCommand& command) noexcept;
    void obey_due_commands() noexcept;
    void list(Voice& voice) noexcept;
    void mix(std::span<float> out) noexcept;
    void note_sound(std::span<const float> out) noexcept;
    void unlist_done_voices() noexcept;

    CommandQueue commands_;
    RetiredList retired_;
    PullBursts bursts_;
    BusTaps taps_;
    std::atomic<std::int64_t> rendered_{0};
    std::atomic<std::int64_t> greatest_block_{0};
    std::atomic<std::int64_t> late_{0};
    std::atomic<std::int64_t> silent_since_{0};
    std::atomic<std::int64_t> silent_until_{0};
    RealTime real_time_;
};

} // namespace sonarelle
