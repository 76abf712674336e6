#pragma once

#include <array>
#include <span>

namespace sonarelle {

/// Keeps the programme at -1 dBFS at most. What stays below passes bit for bit; a louder peak is brought down at once,
/// both channels alike, and the gain comes back within a fifth of a second. It has no delay, so everything is heard on
/// its frame.
class Limiter {
public:
    static constexpr float ceiling = 0.891250938F;

    /// In place, two floats a frame. Returns what is the greatest of each channel then.
    std::array<float, 2> apply(std::span<float> frames) noexcept;

private:
    void reduce(std::span<float> frames) noexcept;

    float gain_ = 1.0F;
};

} // namespace sonarelle
