#pragma once

#include <algorithm>
#include <chrono>

#include "platform/units.h"

namespace sonarelle {

/// Tells on the monotonic clock when the bus will have rendered a frame, rather too early than too late. The count
/// jumps by whole blocks, and by several at once; the earliest moment at which a count was seen is the nearest to the
/// truth, and is forgotten slowly, as clocks drift.
class PaceEstimate {
public:
    using Instant = std::chrono::steady_clock::time_point;

    /// `reach` is what the count may jump by at once.
    void observe(Frames rendered, Frames block, Frames reach, Instant now) {
        const Instant begin = now - time_of(rendered);
        const bool stalled = begin - begin_ > time_of(reach) + std::chrono::milliseconds{200};
        if (!known_ || stalled)
            begin_ = begin;
        else
            begin_ = std::min(begin, begin_ + (now - observed_) / 1000);
        known_ = true;
        observed_ = now;
        rendered_ = rendered;
        block_ = std::max(block, Frames{1});
    }

    [[nodiscard]] Instant when_rendered(Frames frame) const {
        const std::int64_t blocks =
            std::max<std::int64_t>(0, ((frame - rendered_).count() + block_.count() - 1) / block_.count());
        return begin_ + time_of(rendered_ + Frames{blocks * block_.count()});
    }

private:
    static std::chrono::nanoseconds time_of(Frames frames) {
        return std::chrono::nanoseconds{frames.count() * 62500 / 3}; // 1e9 / 48000
    }

    Instant begin_;
    Instant observed_;
    Frames rendered_;
    Frames block_{1};
    bool known_ = false;
};

} // namespace sonarelle
