#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <optional>

#include "platform/units.h"

namespace sonarelle {

/// Silence that a card made because it got its sound too late.
struct OutputGaps {
    int count = 0; ///< Spans of two seconds with gaps.
    Frames lost;   ///< All gaps together.
};

/// Finds a card's gaps by when it asks for sound. A card that never runs dry asks for each frame at a certain moment or
/// somewhat later, as threads are late; after a gap it asks for everything later by the gap's length. So the earliest
/// request of each two seconds counts, and a gap is what two such spans in a row are late.
class GapWatch {
public:
    using Instant = std::chrono::steady_clock::time_point;
    static constexpr Frames span = seconds(2);

    /// The card asks for what follows on the first `before` frames. From its callback.
    void asked(Frames before, Instant now) noexcept;
    /// The card is another one, or was silent for reasons of its own. From any thread.
    void restart() noexcept { restarts_.store(true, std::memory_order_relaxed); }
    /// From any thread.
    [[nodiscard]] OutputGaps gaps() const noexcept {
        return {count_.load(std::memory_order_relaxed), Frames{lost_.load(std::memory_order_relaxed)}};
    }

private:
    using Time = std::chrono::nanoseconds;

    void end_span() noexcept;

    Instant earliest_ = Instant::max(); // of this span, brought back to frame 0
    Frames span_end_;
    std::optional<Instant> expected_; // by the spans before
    Time late_{0};                    // the last span; nothing for less than a gap
    std::atomic<bool> restarts_{true};
    std::atomic<int> count_{0};
    std::atomic<std::int64_t> lost_{0};
};

} // namespace sonarelle
