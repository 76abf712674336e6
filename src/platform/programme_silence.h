#pragma once

#include <algorithm>

#include "platform/units.h"

namespace sonarelle {

/// Below this level, -60 dBFS, the programme is silent.
inline constexpr float silence_level = 0.001F;
/// A silence of this length is told.
inline constexpr Frames silence_told_after = seconds(2);

/// When the programme, the sum of all graphs, was silent. Frames of the station's time.
struct ProgrammeSilence {
    Frames since; ///< Behind the last frame that sounded.
    Frames until; ///< Where the last silence of 2 s or more ended.
    Frames known; ///< How far the programme has been heard; live, that is a little before now.
};

/// Keeps account of a programme whose graphs make no sound, by the spans in which they run.
class RunningSpans {
public:
    struct Span {
        Frames from;
        Frames to;
    };
    void add(Span span) {
        if (span.to <= span.from)
            return;
        if (span.from - since_ >= silence_told_after)
            until_ = span.from;
        since_ = std::max(since_, span.to);
    }
    [[nodiscard]] ProgrammeSilence at(Frames now) const { return {since_, until_, now}; }

private:
    Frames since_;
    Frames until_;
};

} // namespace sonarelle
