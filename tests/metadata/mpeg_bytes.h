#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace sonarelle {

/// An MPEG audio file in the making: one frame header and what lies behind it. At first MPEG-1 Layer III, 128 kbit/s,
/// 44100 Hz, stereo, without CRC.
struct MpegBytes {
    unsigned version = 3; ///< 0 is 2.5, 2 is 2.0, 3 is 1.0.
    unsigned layer = 1;   ///< 1 is III, 2 is II, 3 is I.
    bool crc = false;
    unsigned rate = 9;
    unsigned frequency = 0;
    bool padded = false;
    bool private_bit = false;
    unsigned mode = 0;
    unsigned mode_extension = 0;
    bool copyright = false;
    bool original = false;
    unsigned emphasis = 0;
    std::size_t size = 4170;
    std::string body = {}; ///< From the fifth byte on; zeros follow.

    [[nodiscard]] std::string bytes() const {
        std::string all = "\xFF";
        all += byte(0xE0U | version << 3 | layer << 1 | (crc ? 0U : 1U));
        all += byte(rate << 4 | frequency << 2 | (padded ? 2U : 0U) | (private_bit ? 1U : 0U));
        all += byte(mode << 6 | mode_extension << 4 | (copyright ? 8U : 0U) | (original ? 4U : 0U) | emphasis);
        all += body;
        all.resize(size, '\0');
        return all;
    }

    static char byte(unsigned value) { return static_cast<char>(static_cast<unsigned char>(value)); }
};

inline std::string big_endian(std::uint32_t value) {
    std::string bytes;
    for (const unsigned shift : {24U, 16U, 8U, 0U})
        bytes += MpegBytes::byte((value >> shift) & 0xFFU);
    return bytes;
}

/// What stands between the header and a block of variable rate that begins `offset` bytes behind the 0xFF.
inline std::string up_to(std::size_t offset) {
    return std::string(offset - 4, '\0');
}

struct XingBytes {
    std::string mark = "Xing";
    unsigned flags = 3;
    std::uint32_t frames = 7600;
    std::uint32_t stream = 3'200'000;

    [[nodiscard]] std::string bytes() const {
        return mark + big_endian(flags) + big_endian(frames) + big_endian(stream);
    }
};

struct VbriBytes {
    std::string mark = "VBRI";
    unsigned delay = 0;
    std::uint32_t stream = 3'200'000;
    std::uint32_t frames = 7600;

    [[nodiscard]] std::string bytes() const {
        std::string block = mark + std::string(2, '\0');
        block += MpegBytes::byte(delay >> 8);
        block += MpegBytes::byte(delay & 0xFFU);
        return block + std::string(2, '\0') + big_endian(stream) + big_endian(frames);
    }
};

} // namespace sonarelle
