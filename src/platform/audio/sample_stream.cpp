#include "platform/audio/sample_stream.h"

#include <algorithm>
#include <cassert>

namespace sonarelle {

SampleStream::SampleStream(Frames start, Frames end, std::size_t capacity_frames,
                           std::shared_ptr<SoundTroubles> troubles)
    : start_{start},
      end_{end},
      capacity_{capacity_frames},
      samples_{new float[2 * capacity_frames]},
      troubles_{std::move(troubles)} {}

std::span<float> SampleStream::room() {
    const std::int64_t write = write_.load(std::memory_order_relaxed);
    const std::int64_t used = write - read_.load(std::memory_order_acquire);
    const std::int64_t announced = (end_ - start_).count() - write; // nothing is kept of what lies behind the end
    const std::size_t at = place(write);
    const auto free = static_cast<std::size_t>(std::clamp<std::int64_t>(announced, 0, std::int64_t(capacity_) - used));
    return {samples_.get() + 2 * at, 2 * std::min(free, capacity_ - at)};
}

void SampleStream::written(std::size_t frames) {
    const std::int64_t write = write_.load(std::memory_order_relaxed) + static_cast<std::int64_t>(frames);
    assert(write - read_.load(std::memory_order_relaxed) <= std::int64_t(capacity_));
    write_.store(write, std::memory_order_release);
}

SampleStream::View SampleStream::look(Frames from, std::size_t frames) noexcept {
    pass_over(from);
    const std::int64_t begin = (from - start_).count();
    const std::int64_t there = write_.load(std::memory_order_acquire) - begin;
    if (begin < 0 || there <= 0)
        return {};
    const std::size_t count = std::min(frames, static_cast<std::size_t>(there));
    const std::size_t at = place(begin);
    const std::size_t straight = std::min(count, capacity_ - at);
    return {.first = {samples_.get() + 2 * at, 2 * straight}, .second = {samples_.get(), 2 * (count - straight)}};
}

void SampleStream::pass_over(Frames up_to) noexcept {
    const std::int64_t reached = std::min((up_to - start_).count(), write_.load(std::memory_order_acquire));
    if (reached > read_.load(std::memory_order_relaxed))
        read_.store(reached, std::memory_order_release);
}

} // namespace sonarelle
