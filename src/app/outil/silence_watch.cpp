#include "app/outil/silence_watch.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace sonarelle {

void SilenceWatch::silent(Frames from, Frames to) {
    if (!since_)
        since_ = from;
    until_ = to;
}

void SilenceWatch::sounding() {
    if (since_ && until_ - *since_ >= silence_told_after && on_silence_over)
        on_silence_over(*since_, until_ - *since_);
    since_.reset();
}

void SilenceWatch::skip(Frames span) {
    if (span == Frames{})
        return;
    sounding();
    taken_ += span;
}

void SilenceWatch::take(std::span<const float> frames) {
    constexpr auto piece = static_cast<std::size_t>(2 * frame_rate); // a second of both channels
    while (!frames.empty()) {
        const std::size_t count = std::min(piece, frames.size());
        take_piece(frames.first(count));
        frames = frames.subspan(count);
    }
}

// A silence that begins and ends within a piece is too short to count: what matters are the piece's ends, and while
// there is sound the first look finds it.
void SilenceWatch::take_piece(std::span<const float> frames) {
    const auto sounds = [](float sample) { return std::fabs(sample) >= silence_level; };
    const auto in_frames = [](auto samples) { return Frames{static_cast<std::int64_t>(samples) / 2}; };
    const Frames begin = std::exchange(taken_, taken_ + in_frames(frames.size()));
    const auto last = std::find_if(frames.rbegin(), frames.rend(), sounds);
    if (last == frames.rend())
        return silent(begin, taken_);
    if (since_)
        silent(begin, begin + in_frames(std::ranges::find_if(frames, sounds) - frames.begin()));
    sounding();
    const Frames quiet = begin + in_frames(frames.rend() - last + 1);
    if (quiet < taken_)
        silent(quiet, taken_);
}

} // namespace sonarelle
