#pragma once

#include <string>

#include "memory_file.h"
#include "platform/audio/mpeg_frame.h"

namespace sonarelle {

/// MPEG audio made by hand: frames of silence, layer III, 44.1 kHz, stereo, 128 kbit/s: 417 bytes, 1152 samples.
inline constexpr std::uint32_t silent_word = 0xFFFB9000;
inline constexpr std::int64_t silent_bytes = 417;
inline constexpr std::int64_t silent_samples = 1152;

[[nodiscard]] inline std::string mpeg_silence_of(std::uint32_t word) {
    std::string frame(mpeg_frame(word).value().bytes, '\0');
    return frame.replace(0, 4, big_endian(word, 4));
}

[[nodiscard]] inline std::string silent_frames(int count) {
    std::string frames;
    for (int frame = 0; frame < count; ++frame)
        frames += mpeg_silence_of(silent_word);
    return frames;
}

/// A frame that announces frames and bytes, and the samples that the encoder put before and behind the music.
[[nodiscard]] inline std::string xing_frame(std::uint32_t frames, std::uint32_t bytes, std::uint32_t before,
                                            std::uint32_t behind) {
    const std::string header = "Xing" + big_endian(3, 4) + big_endian(frames, 4) + big_endian(bytes, 4) + "LAME" +
                               std::string(17, '\0') + big_endian(before << 12 | behind, 3);
    return mpeg_silence_of(silent_word).replace(36, header.size(), header);
}

} // namespace sonarelle
