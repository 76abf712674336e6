#include "platform/audio/limiter.h"

#include <algorithm>
#include <cmath>

namespace sonarelle {

namespace {

constexpr float recovery = 1.0F / 2400.0F; // of what is missing, each frame: a time constant of 50 ms
constexpr float recovered = 0.9999F;

float peak_of(std::span<const float> samples) {
    float peak = 0;
    for (const float sample : samples)
        peak = std::max(peak, std::abs(sample));
    return peak;
}

} // namespace

void Limiter::apply(std::span<float> frames) noexcept {
    if (gain_ < 1.0F || peak_of(frames) > ceiling)
        reduce(frames);
}

void Limiter::reduce(std::span<float> frames) noexcept {
    for (std::size_t at = 0; at + 1 < frames.size(); at += 2) {
        const float peak = std::max(std::abs(frames[at]), std::abs(frames[at + 1]));
        const float raised = gain_ + (1.0F - gain_) * recovery;
        gain_ = raised > recovered ? 1.0F : raised;
        if (peak * gain_ > ceiling)
            gain_ = ceiling / peak;
        if (gain_ == 1.0F)
            continue;
        for (std::size_t sample = at; sample < at + 2; ++sample)
            frames[sample] = std::clamp(frames[sample] * gain_, -ceiling, ceiling);
    }
}

} // namespace sonarelle
