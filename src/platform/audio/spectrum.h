#pragma once

#include <array>
#include <complex>
#include <cstddef>
#include <span>
#include <vector>

namespace sonarelle {

/// What a spectrum display shows: the last 2048 frames (43 ms) in bands of equal width on a logarithmic scale. One
/// thread, outside of the callback.
class Spectrum {
public:
    static constexpr std::size_t window_frames = 2048;
    static constexpr float floor = -100; ///< Decibels; nothing reads lower.

    struct Range {
        double lowest = 40; ///< Hz: lower edge of the first band, upper edge of the last.
        double highest = 16000;
    };

    explicit Spectrum(std::size_t bands)
        : Spectrum{bands, Range{}} {}
    /// The lines lie 23 Hz apart: neighbours below some 70 Hz read nearly alike, whatever the number of bands.
    Spectrum(std::size_t bands, Range range);

    /// The level of each band in decibels; 0 is a full sine on both channels, and a sine between two lines of the
    /// transform reads up to 1.5 dB less. Takes `window_frames` frames, two floats each, oldest first; what is missing
    /// at the beginning is silence. Good until the next call.
    std::span<const float> bands_of(std::span<const float> frames);

    /// In Hz.
    [[nodiscard]] double centre(std::size_t band) const;

private:
    using Line = std::complex<float>;

    [[nodiscard]] double edge(double band) const;
    void load(std::span<const float> frames);
    void transform();
    void measure_lines();
    [[nodiscard]] float level(std::size_t band) const;

    Range range_;
    std::vector<float> bands_;
    std::vector<float> window_;
    std::vector<Line> turns_; // exp(-2 pi i k / n), the first half
    std::vector<Line> lines_;
    std::vector<float> decibels_; // of the lines up to half the rate
};

} // namespace sonarelle
