#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace sonarelle {

class TypeTagMpeg;

/// Fills a cleared record from one candidate: a 0xFF byte and what follows it.
class MpegFrameReader {
public:
    static constexpr std::size_t header_size = 4;
    static constexpr std::size_t extent = 54; ///< As far as a block of variable rate is looked at.

    /// `bytes` begin with the 0xFF byte, at `position` of the file; they are `extent` long, fewer where the file ends,
    /// and at least `header_size`.
    MpegFrameReader(TypeTagMpeg& record, std::span<const std::byte> bytes, std::int32_t position,
                    std::int32_t file_size);

    /// False when the candidate is refused; the record then holds nothing of use.
    [[nodiscard]] bool read(bool strict);

private:
    [[nodiscard]] bool read_header(bool strict);
    void read_flags();
    void read_mode();
    [[nodiscard]] bool read_xing();
    [[nodiscard]] bool read_vbri();
    void set_variable_rate(double stream_bytes);

    [[nodiscard]] int frequency(unsigned version_row) const;
    [[nodiscard]] std::int32_t frequency_of_variable_rate(unsigned version_row) const;
    [[nodiscard]] std::size_t side_information_end() const;
    [[nodiscard]] bool is_mono() const { return (h2_ & 0xC0U) == 0xC0U; }

    /// Bytes counted from the 0xFF; one behind the file's end is Failure 62.
    [[nodiscard]] unsigned byte_at(std::size_t offset) const;
    [[nodiscard]] std::int32_t big_endian_at(std::size_t offset) const;
    [[nodiscard]] bool says_at(std::size_t offset, std::string_view capitals) const;

    TypeTagMpeg& record_;
    std::span<const std::byte> bytes_;
    std::int32_t position_;
    std::int32_t file_size_;
    unsigned h0_;
    unsigned h1_;
    unsigned h2_;
};

} // namespace sonarelle
