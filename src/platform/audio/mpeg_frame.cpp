#include "platform/audio/mpeg_frame.h"

#include <algorithm>
#include <cstring>

namespace sonarelle {

namespace {

constexpr std::size_t decoder_delay = 529; // of layer III's filter bank

// Kilobits per second by index, for version 1 layers I, II, III and version 2 layers I, II and III.
using BitRates = std::array<int, 15>;
constexpr std::array<BitRates, 5> bit_rates{{
    {0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448},
    {0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384},
    {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320},
    {0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256},
    {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160},
}};

const BitRates& rates_of(int version, int layer) {
    if (version == 1)
        return bit_rates[static_cast<std::size_t>(layer - 1)];
    return bit_rates[layer == 1 ? 3 : 4];
}

std::size_t bytes_of(int layer, int version, int bit_rate, int rate, int padding) {
    const int bytes_a_slot = layer == 1 ? 4 : 1;
    const int slots_a_kilobit = layer == 1 ? 12 : layer == 3 && version != 1 ? 72 : 144;
    const int bytes = (slots_a_kilobit * bit_rate * 1000 / rate + padding) * bytes_a_slot;
    return static_cast<std::size_t>(bytes);
}

std::size_t side_info_of(int version, int channels) {
    if (version == 1)
        return channels == 1 ? 17 : 32;
    return channels == 1 ? 9 : 17;
}

bool says(const std::uint8_t* bytes, const char* word) {
    return std::memcmp(bytes, word, 4) == 0;
}

// Encoders of the LAME family tell the silence that they added; others may have anything there.
void read_gaps(MpegLengthHeader& header, const std::uint8_t* tag) {
    if (!says(tag, "LAME") && !says(tag, "Lavf") && !says(tag, "Lavc"))
        return;
    const std::uint32_t gaps = mpeg_word(tag + 20) & 0xFFFFFFU;
    header.start_skip = (gaps >> 12) + decoder_delay;
    header.end_padding = std::max<std::size_t>(gaps & 0xFFFU, decoder_delay) - decoder_delay;
}

MpegLengthHeader read_xing(const std::uint8_t* xing, const std::uint8_t* end) {
    MpegLengthHeader header;
    const std::uint32_t flags = mpeg_word(xing + 4);
    const std::uint8_t* field = xing + 8;
    const auto take = [&](std::uint32_t flag, std::ptrdiff_t size) {
        const std::uint8_t* here = field;
        if ((flags & flag) == 0 || end - field < size)
            return std::uint32_t{0};
        field += size;
        return mpeg_word(here);
    };
    header.frames = take(1, 4);
    header.bytes = take(2, 4);
    take(4, 100);
    take(8, 4);
    if (end - field >= 24)
        read_gaps(header, field);
    return header;
}

} // namespace

std::optional<MpegFrame> mpeg_frame(std::uint32_t word) {
    const int version_code = static_cast<int>(word >> 19 & 3);
    const int layer_code = static_cast<int>(word >> 17 & 3);
    const auto bit_rate_index = static_cast<std::size_t>(word >> 12 & 15);
    const int rate_index = static_cast<int>(word >> 10 & 3);
    if (word >> 21 != 0x7FF || version_code == 1 || layer_code == 0 || bit_rate_index == 0 || bit_rate_index == 15 ||
        rate_index == 3)
        return std::nullopt;

    constexpr std::array base_rates{44100, 48000, 32000};
    MpegFrame frame;
    frame.version = version_code == 3 ? 1 : version_code == 2 ? 2 : 25;
    frame.layer = 4 - layer_code;
    frame.rate = base_rates[static_cast<std::size_t>(rate_index)] / (frame.version == 1   ? 1
                                                                     : frame.version == 2 ? 2
                                                                                          : 4);
    frame.channels = (word >> 6 & 3) == 3 ? 1 : 2;
    frame.samples = frame.layer == 1 ? 384 : frame.layer == 3 && frame.version != 1 ? 576 : 1152;
    frame.bytes = bytes_of(frame.layer, frame.version, rates_of(frame.version, frame.layer)[bit_rate_index], frame.rate,
                           static_cast<int>(word >> 9 & 1));
    frame.side_info = frame.layer == 3 ? side_info_of(frame.version, frame.channels) : 0;
    return frame;
}

std::int64_t least_mpeg_bytes(std::uint32_t word, std::uint32_t frames) {
    constexpr std::uint32_t bit_rate_and_padding = 0xF200;
    constexpr std::uint32_t lowest_bit_rate = 0x1000;
    const auto frame = mpeg_frame((word & ~bit_rate_and_padding) | lowest_bit_rate);
    return frame ? std::int64_t{frames} * static_cast<std::int64_t>(frame->bytes) : 0;
}

std::optional<MpegLengthHeader> mpeg_length_header(const MpegFrame& frame, const std::uint8_t* bytes) {
    constexpr std::size_t head = 4;
    constexpr std::size_t vbri_at = head + 32;
    const std::uint8_t* end = bytes + frame.bytes;
    const std::size_t xing_at = head + frame.side_info;
    if (frame.layer != 3)
        return std::nullopt;
    if (frame.bytes >= xing_at + 8 && (says(bytes + xing_at, "Xing") || says(bytes + xing_at, "Info")))
        return read_xing(bytes + xing_at, end);
    if (frame.bytes >= vbri_at + 18 && says(bytes + vbri_at, "VBRI"))
        return MpegLengthHeader{.frames = mpeg_word(bytes + vbri_at + 14), .bytes = mpeg_word(bytes + vbri_at + 10)};
    return std::nullopt;
}

} // namespace sonarelle
