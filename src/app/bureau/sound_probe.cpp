#include "app/bureau/sound_probe.h"

namespace sonarelle {

SoundReading SoundProbe::reading() {
    return {[this] { return level(); }, [this](std::span<float> frames) { taps_.newest(frames); },
            [this] { return bands(); }};
}

LevelReading SoundProbe::level() {
    loudness_.feed(reader_.read());
    return {taps_.level().peak, loudness_.lufs()};
}

std::span<const float> SoundProbe::bands() {
    taps_.newest(window_);
    return spectrum_.bands_of(window_);
}

} // namespace sonarelle
