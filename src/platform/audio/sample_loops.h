#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace sonarelle {

// The loops over every sample of the programme, each with a part in groups of a fixed size, which the compiler makes
// into a few steps. The places that a loop reads and writes don't overlap.

inline constexpr std::size_t samples_at_once = 16;
[[nodiscard]] constexpr std::size_t in_groups(std::size_t count) {
    return count - count % samples_at_once;
}

inline void add_with_gain(const float* __restrict from, std::size_t count, float gain, float* __restrict to) noexcept {
    std::size_t at = 0;
    for (; at < in_groups(count); at += samples_at_once)
        for (std::size_t lane = 0; lane < samples_at_once; ++lane)
            to[at + lane] += from[at + lane] * gain;
    for (; at < count; ++at)
        to[at] += from[at] * gain;
}

/// What is no number or beyond all music becomes silence: damaged floats can be anything.
[[nodiscard]] inline float cleaned(float sample) {
    constexpr float loudest = 64.0F; // 36 dB above full
    return std::abs(sample) <= loudest ? sample : 0.0F;
}

inline void copy_cleaned(const float* __restrict from, std::size_t count, float* __restrict to) noexcept {
    std::size_t at = 0;
    for (; at < in_groups(count); at += samples_at_once)
        for (std::size_t lane = 0; lane < samples_at_once; ++lane)
            to[at + lane] = cleaned(from[at + lane]);
    for (; at < count; ++at)
        to[at] = cleaned(from[at]);
}

/// The greatest of each channel, of frames of two floats.
[[nodiscard]] inline std::array<float, 2> peaks_of(const float* frames, std::size_t count) noexcept {
    std::array<float, 8> lanes{}; // which don't wait for each other, left and right in turn
    std::size_t at = 0;
    for (; at + lanes.size() <= count; at += lanes.size())
        for (std::size_t lane = 0; lane < lanes.size(); ++lane)
            lanes[lane] = std::max(lanes[lane], std::abs(frames[at + lane]));
    for (; at < count; ++at)
        lanes[at % 2] = std::max(lanes[at % 2], std::abs(frames[at]));
    return {std::max({lanes[0], lanes[2], lanes[4], lanes[6]}), std::max({lanes[1], lanes[3], lanes[5], lanes[7]})};
}

inline constexpr float full_scale = 32767.0F / 32768.0F; ///< The greatest of 16 bits.

/// To the nearest whole number, the even one of two. Within full scale.
[[nodiscard]] inline std::int16_t to_16_bits(float sample) noexcept {
    constexpr float lowest_bits_are_ones = 0x1.8p23F; // of a float so great
    return static_cast<std::int16_t>(std::bit_cast<std::int32_t>(sample * 32768.0F + lowest_bits_are_ones));
}

/// What is beyond full scale is cut, which the programme, at -1 dBFS at most, never is.
inline void to_16_bits(const float* __restrict from, std::size_t count, std::int16_t* __restrict to) noexcept {
    if (std::ranges::max(peaks_of(from, count)) > full_scale) {
        std::transform(from, from + count, to,
                       [](float sample) { return to_16_bits(std::clamp(sample, -1.0F, full_scale)); });
        return;
    }
    std::size_t at = 0;
    for (; at < in_groups(count); at += samples_at_once)
        for (std::size_t lane = 0; lane < samples_at_once; ++lane)
            to[at + lane] = to_16_bits(from[at + lane]);
    for (; at < count; ++at)
        to[at] = to_16_bits(from[at]);
}

} // namespace sonarelle
