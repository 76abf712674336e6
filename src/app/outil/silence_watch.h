#pragma once

#include <functional>
#include <optional>
#include <span>

#include "platform/programme_silence.h"

namespace sonarelle {

/// Counts how long the air is silent: every silence of 2 s and more, whole.
class SilenceWatch {
public:
    std::function<void(Frames from, Frames span)> on_silence_over;

    /// The air was silent, or not, from one frame to another; spans come in order.
    void silent(Frames from, Frames to);
    void sounding();

    /// The programme's next frames, two floats each. Below -60 dBFS is silence.
    void take(std::span<const float> frames);
    /// So many of them weren't heard, and count as sound.
    void skip(Frames span);

    /// The programme is over.
    void end() { sounding(); }

private:
    void take_piece(std::span<const float> frames);

    std::optional<Frames> since_;
    Frames until_;
    Frames taken_;
};

} // namespace sonarelle
