#pragma once

#include <algorithm>
#include <atomic>
#include <chrono>

#include "platform/units.h"

namespace sonarelle {

/// How much sound is asked for at once. A server takes several blocks in a row, between which nobody can act: those
/// within 10 ms of the first one are one burst. The greatest of the last minute counts, and for up to one minute more,
/// so that the one that fills a card at its opening is forgotten.
class PullBursts {
public:
    using Instant = std::chrono::steady_clock::time_point;
    static constexpr std::chrono::milliseconds together{10};
    static constexpr std::chrono::seconds span{60};

    /// From who pulls, one at a time.
    void pulled(Frames block, Instant now) noexcept {
        if (now >= span_end_) {
            of_last_span_ = now < span_end_ + span ? of_this_span_ : Frames{};
            of_this_span_ = Frames{};
            span_end_ = now + span;
        }
        if (now >= burst_end_) {
            burst_ = Frames{};
            burst_end_ = now + together;
        }
        burst_ += block;
        of_this_span_ = std::max(of_this_span_, burst_);
        greatest_.store(std::max(of_this_span_, of_last_span_).count(), std::memory_order_relaxed);
    }

    /// From any thread.
    [[nodiscard]] Frames greatest() const noexcept { return Frames{greatest_.load(std::memory_order_relaxed)}; }

private:
    Instant span_end_;
    Instant burst_end_;
    Frames burst_;
    Frames of_this_span_;
    Frames of_last_span_;
    std::atomic<std::int64_t> greatest_{0};
};

} // namespace sonarelle
