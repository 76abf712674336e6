#pragma once

#include <array>
#include <cmath>
#include <numbers>
#include <vector>

namespace sonarelle {

/// A sine at 48 kHz with the peaks of the two channels.
[[nodiscard]] inline std::vector<float> tone(double hertz, std::array<double, 2> peaks, std::size_t frames) {
    std::vector<float> samples;
    for (std::size_t frame = 0; frame < frames; ++frame) {
        const double value = std::sin(2 * std::numbers::pi * hertz * static_cast<double>(frame) / 48000);
        for (const double peak : peaks)
            samples.push_back(static_cast<float>(peak * value));
    }
    return samples;
}

/// The peak of a level below full, in decibels.
[[nodiscard]] inline double decibels(double level) {
    return std::pow(10.0, level / 20);
}

} // namespace sonarelle
