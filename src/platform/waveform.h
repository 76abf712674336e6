#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace sonarelle {

/// The shape of a file's sound, for the eye: the greatest sample of each of many stretches of one length.
struct Waveform {
    double column_seconds = 0;       ///< The length of a stretch.
    std::vector<std::uint8_t> peaks; ///< Of both channels; 255 is full scale.

    [[nodiscard]] double seconds() const { return column_seconds * static_cast<double>(peaks.size()); }

    /// The greatest sample heard between two seconds of the file, and of the stretches that they fall into; 0 beyond
    /// its ends.
    [[nodiscard]] int peak_between(double from, double to) const {
        if (peaks.empty() || to <= from || to <= 0 || from >= seconds())
            return 0;
        const auto column_of = [this](double second) {
            return std::min(static_cast<std::size_t>(std::max(second, 0.0) / column_seconds), peaks.size() - 1);
        };
        const auto first = peaks.begin() + static_cast<std::ptrdiff_t>(column_of(from));
        const auto last = peaks.begin() + static_cast<std::ptrdiff_t>(column_of(to));
        return *std::max_element(first, last + 1);
    }
    friend bool operator==(const Waveform&, const Waveform&) = default;
};

} // namespace sonarelle
