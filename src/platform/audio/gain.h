#pragma once

#include <cmath>
#include <cstddef>
#include <span>

#include "platform/audio/sample_loops.h"
#include "platform/units.h"

namespace sonarelle {

inline constexpr int ramp_frames = static_cast<int>(10 * frames_per_millisecond);

[[nodiscard]] inline float gain_of(Millibel attenuation) {
    return attenuation.count() <= -10000 ? 0.0F : static_cast<float>(std::pow(10.0, attenuation.count() / 2000.0));
}

/// A gain that goes to each new value in a straight line of 10 ms. Every frame's gain follows from whole numbers, so it
/// doesn't matter in what pieces the ramp is walked.
class RampedGain {
public:
    void jump(float target) noexcept {
        from_ = to_ = target;
        left_ = 0;
    }
    void go(float target) noexcept {
        from_ = now();
        to_ = target;
        left_ = ramp_frames;
    }
    [[nodiscard]] float now() const noexcept {
        return left_ == 0 ? to_ : to_ + (from_ - to_) * (static_cast<float>(left_) / static_cast<float>(ramp_frames));
    }

    /// Adds the samples (two a frame), with the gain, to `out`, and goes on.
    void add(std::span<const float> samples, float* out) noexcept {
        std::size_t at = 0;
        for (; left_ > 0 && at < samples.size(); at += 2, --left_) {
            const float gain = now();
            out[at] += samples[at] * gain;
            out[at + 1] += samples[at + 1] * gain;
        }
        add_with_gain(samples.data() + at, samples.size() - at, to_, out + at);
    }

    /// Goes on over frames that are silent.
    void pass(std::size_t frames) noexcept {
        left_ = frames >= static_cast<std::size_t>(left_) ? 0 : left_ - static_cast<int>(frames);
    }

private:
    float from_ = 1.0F;
    float to_ = 1.0F;
    int left_ = 0;
};

} // namespace sonarelle
