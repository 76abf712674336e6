#include "platform/audio/bus_taps.h"

#include <algorithm>
#include <cstring>

namespace sonarelle {

void BusTaps::take(std::span<const float> frames, const Level& level, Frames at) noexcept {
    const std::size_t count = frames.size() / 2;
    const auto begin = static_cast<std::size_t>(at.count());
    writing_.store(static_cast<std::int64_t>(begin + count), std::memory_order_relaxed);
    for (std::size_t frame = 0; frame < count;) {
        const std::size_t place = (begin + frame) % kept_frames;
        const std::size_t straight = std::min(count - frame, kept_frames - place);
        for (std::size_t next = 0; next < straight; ++next)
            frames_[place + next].store(packed(&frames[2 * (frame + next)]), std::memory_order_release);
        frame += straight;
    }
    // A reader's reset between the two is lost: the meter then shows an old peak once more.
    for (std::size_t channel = 0; channel < 2; ++channel)
        if (level.peak[channel] > peak_[channel].load(std::memory_order_relaxed))
            peak_[channel].store(level.peak[channel], std::memory_order_relaxed);
    end_.store(static_cast<std::int64_t>(begin + count), std::memory_order_release);
}

Level BusTaps::level() {
    Level level;
    for (std::size_t channel = 0; channel < 2; ++channel)
        level.peak[channel] = peak_[channel].exchange(0, std::memory_order_relaxed);
    return level;
}

void BusTaps::newest(std::span<float> frames) const {
    const std::size_t count = std::min(frames.size() / 2, kept_frames / 2);
    copy(static_cast<std::size_t>(end().count()) + kept_frames - count, frames.first(2 * count));
}

BusTaps::Piece BusTaps::copy_from(Frames from, std::span<float> frames) const {
    constexpr Frames kept{static_cast<std::int64_t>(kept_frames)};
    const Frames newest_end = end();
    const Frames begin = std::max({from, newest_end - kept, Frames{}});
    if (begin >= newest_end)
        return {begin, 0};
    const std::size_t count = std::min(frames.size() / 2, static_cast<std::size_t>((newest_end - begin).count()));
    copy(static_cast<std::size_t>(begin.count()), frames.first(2 * count));
    const Frames oldest_whole = Frames{writing_.load(std::memory_order_relaxed)} - kept;
    if (begin >= oldest_whole)
        return {begin, count};
    const std::size_t lost = std::min(count, static_cast<std::size_t>((oldest_whole - begin).count()));
    std::ranges::copy(frames.subspan(2 * lost, 2 * (count - lost)), frames.begin());
    return {begin + Frames{static_cast<std::int64_t>(lost)}, count - lost};
}

void BusTaps::copy(std::size_t begin, std::span<float> frames) const {
    for (std::size_t frame = 0; frame < frames.size() / 2; ++frame) {
        const std::uint64_t both = frames_[(begin + frame) % kept_frames].load(std::memory_order_acquire);
        std::memcpy(&frames[2 * frame], &both, sizeof both);
    }
}

} // namespace sonarelle
