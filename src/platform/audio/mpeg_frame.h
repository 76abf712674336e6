#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace sonarelle {

/// What the four bytes at the head of an MPEG audio frame say.
struct MpegFrame {
    int version = 1; ///< 1, 2, or 25 for 2.5.
    int layer = 3;
    int rate = 0;
    int channels = 0;
    std::size_t samples = 0;   ///< Of each channel.
    std::size_t bytes = 0;     ///< Of the whole frame.
    std::size_t side_info = 0; ///< Bytes between the head (and its checksum) and the main data; layer III.
};

[[nodiscard]] constexpr std::uint32_t mpeg_word(const std::uint8_t* bytes) {
    return std::uint32_t{bytes[0]} << 24 | std::uint32_t{bytes[1]} << 16 | std::uint32_t{bytes[2]} << 8 | bytes[3];
}

/// Nothing for a word that is no frame head, or one of the free format, whose length can't be told.
[[nodiscard]] std::optional<MpegFrame> mpeg_frame(std::uint32_t word);

/// Whether two heads can be of one stream: same version, layer and sampling rate.
[[nodiscard]] constexpr bool same_mpeg_stream(std::uint32_t a, std::uint32_t b) {
    return ((a ^ b) & 0xFFFE0C00U) == 0;
}

/// The least that so many frames of the stream with this head take: all at its lowest bit rate.
[[nodiscard]] std::int64_t least_mpeg_bytes(std::uint32_t word, std::uint32_t frames);

/// What a length header (Xing, Info or VBRI) in the first frame announces.
struct MpegLengthHeader {
    std::uint32_t frames = 0;    ///< Audio frames behind this one; 0 when it doesn't say.
    std::uint32_t bytes = 0;     ///< Bytes of the stream with this frame; 0 when it doesn't say.
    std::size_t start_skip = 0;  ///< Samples that the encoder put before the music, with the decoder's own delay.
    std::size_t end_padding = 0; ///< Samples that it put behind.
};

[[nodiscard]] std::optional<MpegLengthHeader> mpeg_length_header(const MpegFrame& frame, const std::uint8_t* bytes);

} // namespace sonarelle
