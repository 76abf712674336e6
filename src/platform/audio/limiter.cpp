#include "platform/audio/limiter.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace sonarelle {

namespace {

constexpr float recovery = 1.0F / 2400.0F; // of what is missing, each frame: a time constant of 50 ms
constexpr float recovered = 0.9999F;

// In lanes that don't wait for each other.
float peak_of(std::span<const float> samples) {
    std::array<float, 8> lanes{};
    std::size_t at = 0;
    for (; at + lanes.size() <= samples.size(); at += lanes.size())
        for (std::size_t lane = 0; lane < lanes.size(); ++lane)
            lanes[lane] = std::max(lanes[lane], std::abs(samples[at + lane]));
    for (; at < samples.size(); ++at)
        lanes[0] = std::max(lanes[0], std::abs(samples[at]));
    return *std::ranges::max_element(lanes);
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
