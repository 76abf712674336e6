#pragma once

#include <array>
#include <functional>
#include <optional>
#include <span>

namespace sonarelle {

/// What a level meter shows.
struct LevelReading {
    std::array<float, 2> peak{}; ///< Since the last reading, 0 to 1.
    std::optional<double> lufs;  ///< Momentary loudness; nothing in silence.
};

/// Where the meters and the visual effect take their figures from. Asked only while they can be seen; from the window
/// thread.
struct SoundReading {
    std::function<LevelReading()> level;
    /// The newest frames, two floats each.
    std::function<void(std::span<float> frames)> newest;
    /// The bands of the newest frames, in decibels up to 0.
    std::function<std::span<const float>()> bands;
};

} // namespace sonarelle
