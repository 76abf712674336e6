#pragma once

#include <compare>
#include <cstdint>

namespace sonarelle {

/// A number with its unit in the type, so that two units are never mixed by accident.
template <typename Unit, typename Number>
class Quantity {
public:
    constexpr Quantity() = default;
    constexpr explicit Quantity(Number number)
        : number_{number} {}

    [[nodiscard]] constexpr Number count() const { return number_; }

    constexpr Quantity& operator+=(Quantity other) {
        number_ += other.number_;
        return *this;
    }
    constexpr Quantity& operator-=(Quantity other) {
        number_ -= other.number_;
        return *this;
    }
    friend constexpr Quantity operator+(Quantity a, Quantity b) { return a += b; }
    friend constexpr Quantity operator-(Quantity a, Quantity b) { return a -= b; }
    friend constexpr auto operator<=>(Quantity, Quantity) = default;

private:
    Number number_{};
};

/// Sample frames of the programme, at 48 kHz.
using Frames = Quantity<struct FramesUnit, std::int64_t>;
/// Hundredths of a decibel: 0 is full, -10000 is silence.
using Millibel = Quantity<struct MillibelUnit, int>;
/// Lengths on the screen, 15 to a pixel at 96 dpi.
using Twips = Quantity<struct TwipsUnit, int>;

inline constexpr std::int64_t frame_rate = 48000;
inline constexpr std::int64_t frames_per_millisecond = frame_rate / 1000;

[[nodiscard]] constexpr Frames milliseconds(std::int64_t count) {
    return Frames{count * frames_per_millisecond};
}
[[nodiscard]] constexpr Frames seconds(std::int64_t count) {
    return Frames{count * frame_rate};
}
/// Seconds as the media operations speak them.
[[nodiscard]] constexpr double in_seconds(Frames frames) {
    return static_cast<double>(frames.count()) / static_cast<double>(frame_rate);
}
/// The frame nearest to a time in seconds. A time beyond all sound, which a damaged list may hold, gives a frame there,
/// so far from the ends of the range that a sum of two doesn't overflow; what is no number gives frame 0.
[[nodiscard]] constexpr Frames nearest_frame(double time_in_seconds) {
    constexpr double farthest = 0x1p62;
    const double frames = time_in_seconds * static_cast<double>(frame_rate);
    if (!(frames > -farthest && frames < farthest))
        return Frames{frames > 0 ? INT64_MAX / 2 : frames < 0 ? INT64_MIN / 2 : 0};
    return Frames{static_cast<std::int64_t>(frames < 0 ? frames - 0.5 : frames + 0.5)};
}

} // namespace sonarelle
