#include "platform/audio/gap_watch.h"

#include <algorithm>

namespace sonarelle {

namespace {

constexpr std::chrono::milliseconds least_gap{5}; // clocks drift by less than one in two seconds

std::chrono::nanoseconds time_of(Frames frames) {
    return std::chrono::nanoseconds{frames.count() * 62500 / 3}; // 1e9 / 48000
}

} // namespace

void GapWatch::asked(Frames before, Instant now) noexcept {
    if (restarts_.exchange(false, std::memory_order_relaxed)) {
        expected_.reset();
        earliest_ = Instant::max();
        span_end_ = before + span;
    }
    earliest_ = std::min(earliest_, now - time_of(before));
    if (before < span_end_)
        return;
    end_span();
    earliest_ = Instant::max();
    span_end_ = before + span;
}

void GapWatch::end_span() noexcept {
    const Time late = expected_ ? earliest_ - *expected_ : Time{0};
    if (late < least_gap) {
        expected_ = earliest_;
        late_ = Time{0};
        return;
    }
    if (late_ == Time{0}) {
        late_ = late;
        return;
    }
    const Time gap = std::min(late, late_);
    *expected_ += gap;
    late_ = Time{0};
    count_.fetch_add(1, std::memory_order_relaxed);
    lost_.fetch_add((gap.count() * 3 + 31250) / 62500, std::memory_order_relaxed);
}

} // namespace sonarelle
