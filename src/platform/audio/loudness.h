#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>

#include "platform/units.h"

namespace sonarelle {

/// Momentary loudness of stereo at 48 kHz by ITU-R BS.1770-4: K-weighted, over the last 400 ms, in steps of 10 ms. What
/// was never fed counts as silence. One thread, outside of the callback.
class MomentaryLoudness {
public:
    static constexpr double least = -70; ///< LUFS; the absolute gate, below which the air is silent.

    /// The next frames, two floats each, in blocks of any size.
    void feed(std::span<const float> frames);

    /// In LUFS; nothing below `least`.
    [[nodiscard]] std::optional<double> lufs() const;

private:
    static constexpr std::size_t step_frames = frame_rate / 100;
    static constexpr std::size_t steps = 40;

    /// A second-order section, transposed direct form II.
    class Section {
    public:
        constexpr Section(std::array<double, 3> b, std::array<double, 2> a)
            : b_{b},
              a_{a} {}
        double pass(double sample);
        void drop_remains(); ///< Remains too small for a sound would slow the processor down.

    private:
        std::array<double, 3> b_;
        std::array<double, 2> a_; // a0 is 1
        std::array<double, 2> state_{};
    };

    /// First the head's effect on sound from the front, then the ear's on the lows.
    struct KWeighting {
        Section head{{1.53512485958697, -2.69169618940638, 1.19839281085285}, {-1.69065929318241, 0.73248077421585}};
        Section lows{{1.0, -2.0, 1.0}, {-1.99004745483398, 0.99007225036621}};
    };

    void end_step();

    std::array<KWeighting, 2> channels_{};
    std::array<double, steps> squares_{}; // sums of a step each, both channels
    std::size_t step_ = 0;
    std::size_t frames_in_step_ = 0;
    double squares_of_step_ = 0;
};

} // namespace sonarelle
