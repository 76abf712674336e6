#pragma once

#include <algorithm>
#include <vector>

#include "desktop/sound_reading.h"

namespace sonarelle {

inline constexpr int some_readings = 300; // ms

/// A source of figures that counts who asks.
struct Source {
    LevelReading level{};
    float sample = 0;
    float right = 1; ///< What the right channel has of it.
    std::vector<float> bands{};
    int asked = 0;

    [[nodiscard]] SoundReading reading() {
        return {[this] {
                    ++asked;
                    return level;
                },
                [this](std::span<float> frames) {
                    ++asked;
                    for (std::size_t at = 0; at < frames.size(); ++at)
                        frames[at] = at % 2 == 0 ? sample : sample * right;
                },
                [this]() -> std::span<const float> {
                    ++asked;
                    return bands;
                }};
    }
};

} // namespace sonarelle
