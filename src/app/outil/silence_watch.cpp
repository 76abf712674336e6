#include "app/outil/silence_watch.h"

#include <algorithm>
#include <cmath>

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
    const auto is_quiet = [](float sample) { return std::fabs(sample) < silence_level; };
    while (!frames.empty()) {
        const auto loud = std::ranges::find_if_not(frames, is_quiet);
        const std::size_t quiet = static_cast<std::size_t>(loud - frames.begin()) / 2;
        const Frames end = taken_ + Frames{static_cast<std::int64_t>(quiet)};
        if (quiet > 0)
            silent(taken_, end);
        taken_ = end;
        frames = frames.subspan(quiet * 2);
        if (frames.empty())
            return;
        sounding();
        const auto next_quiet = std::ranges::find_if(frames, is_quiet);
        const auto loud_frames = std::max<std::size_t>(1, static_cast<std::size_t>(next_quiet - frames.begin()) / 2);
        taken_ += Frames{static_cast<std::int64_t>(loud_frames)};
        frames = frames.subspan(loud_frames * 2);
    }
}

} // namespace sonarelle
