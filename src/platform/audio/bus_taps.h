#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <cstring>
#include <span>

#include "platform/units.h"

namespace sonarelle {

/// What the meters show, each channel from 0 (silence) to 1 (full).
struct Level {
    std::array<float, 2> peak{}; ///< The greatest since it was last asked for.
};

/// What leaves the bus, for meters, scope and spectrum. The callback writes, one other thread reads; neither waits.
class BusTaps {
public:
    static constexpr std::size_t kept_frames = 32768; ///< 683 ms.

    /// From the callback. `level` is that of these frames, `at` the bus frame of the first.
    void take(std::span<const float> frames, const Level& level, Frames at) noexcept;

    [[nodiscard]] Level level();
    /// The newest frames, two floats each, oldest first; at most half of the kept ones.
    void newest(std::span<float> frames) const;

    struct Piece {
        Frames first;          ///< Bus frame of the first one; later than asked for where it was no longer kept.
        std::size_t count = 0; ///< In frames.
    };
    /// The frames from `from` on, two floats each, as many as there are and as fit. Each is whole and in its place,
    /// also when the callback writes over the oldest meanwhile.
    [[nodiscard]] Piece copy_from(Frames from, std::span<float> frames) const;
    /// Behind the newest frame.
    [[nodiscard]] Frames end() const { return Frames{end_.load(std::memory_order_acquire)}; }

private:
    /// Both samples of a frame as one number, in the order of memory.
    static std::uint64_t packed(const float* frame) {
        std::uint64_t both = 0;
        std::memcpy(&both, frame, sizeof both);
        return both;
    }
    void copy(std::size_t begin, std::span<float> frames) const;

    // A frame is stored after `writing_` and read before it: who read a new frame in an old one's place knows it.
    std::array<std::atomic<std::uint64_t>, kept_frames> frames_{};
    std::atomic<std::int64_t> writing_{0}; // behind the block that is being written
    std::atomic<std::int64_t> end_{0};
    std::array<std::atomic<float>, 2> peak_{};
};

} // namespace sonarelle
