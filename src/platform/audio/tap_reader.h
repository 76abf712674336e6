#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "platform/audio/bus_taps.h"

namespace sonarelle {

/// One reader's place in what leaves the bus: it gets every frame once, in order, if it comes at least every 600 ms.
/// One that comes later loses the oldest, which are counted. It never holds the callback up. One thread.
class TapReader {
public:
    /// Begins with the next frame. The taps outlive their readers.
    explicit TapReader(const BusTaps& taps)
        : taps_{taps},
          next_{taps.end()},
          frames_(2 * BusTaps::kept_frames) {}

    /// What has come since the last call, two floats a frame, oldest first; good until the next call.
    [[nodiscard]] std::span<const float> read() {
        const BusTaps::Piece piece = taps_.copy_from(next_, frames_);
        lost_ += (piece.first - next_).count();
        next_ = piece.first + Frames{static_cast<std::int64_t>(piece.count)};
        return std::span{frames_}.first(2 * piece.count);
    }
    [[nodiscard]] Frames lost() const { return Frames{lost_}; }

private:
    const BusTaps& taps_;
    Frames next_;
    std::int64_t lost_ = 0;
    std::vector<float> frames_;
};

} // namespace sonarelle
