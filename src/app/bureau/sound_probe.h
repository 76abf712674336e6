#pragma once

#include <vector>

#include "desktop/sound_reading.h"
#include "platform/audio/loudness.h"
#include "platform/audio/spectrum.h"
#include "platform/audio/tap_reader.h"

namespace sonarelle {

/// What the meters and the visual effect show of a bus, worked out when they ask. Window thread.
class SoundProbe {
public:
    /// The taps outlive the probe.
    explicit SoundProbe(BusTaps& taps)
        : taps_{taps},
          reader_{taps},
          window_(2 * Spectrum::window_frames) {}

    /// Good as long as the probe.
    [[nodiscard]] SoundReading reading();

private:
    [[nodiscard]] LevelReading level();
    [[nodiscard]] std::span<const float> bands();

    static constexpr std::size_t band_count = 32;

    BusTaps& taps_;
    TapReader reader_;
    MomentaryLoudness loudness_;
    Spectrum spectrum_{band_count};
    std::vector<float> window_;
};

} // namespace sonarelle
