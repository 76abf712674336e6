#include "platform/audio/limiter.h"

#include <algorithm>
#include <cmath>

#include "platform/audio/sample_loops.h"

namespace sonarelle {

namespace {

constexpr float recovery = 1.0F / 2400.0F; // of what is missing, each frame: a time constant of 50 ms
constexpr float recovered = 0.9999F;

} // namespace

std::array<float, 2> Limiter::apply(std::span<float> frames) noexcept {
    const auto peaks = peaks_of(frames.data(), frames.size());
    if (gain_ == 1.0F && std::ranges::max(peaks) <= ceiling)
        return peaks;
    reduce(frames);
    return peaks_of(frames.data(), frames.size());
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
