#pragma once

#include <functional>
#include <optional>
#include <span>

#include "platform/units.h"

namespace sonarelle {

/// Tells how long the air is silent: 2 s of it are told as soon as they are over, and every silence of 2 s and more is
/// counted whole.
class SilenceWatch {
public:
    std::function<void(Frames)> on_two_seconds;
    std::function<void(Frames)> on_silence_over; ///< With its length.

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
    std::optional<Frames> since_;
    Frames until_;
    Frames taken_;
    bool told_ = false;
};

} // namespace sonarelle
