#include "metadata/mpeg_frame_reader.h"

#include "metadata/TypeTagMpeg.h"
#include "metadata/mpeg_tables.h"
#include "platform/failure.h"
#include "platform/numbers.h"

namespace sonarelle {

namespace {

constexpr unsigned mpeg_2_5_row = 0;
constexpr unsigned mpeg_1_row = 3;
constexpr unsigned layer_i = 3;
constexpr unsigned joint_stereo = 1;

// Frames a second, the same for every version and frequency.
constexpr double frames_a_second = 38;

/// A field of a header byte.
unsigned bits(unsigned byte, unsigned lowest, unsigned count) {
    return (byte >> lowest) & ((1U << count) - 1);
}

double divided(double value, double divisor) {
    if (divisor == 0)
        throw Failure{FailureNumber::division_by_zero};
    return value / divisor;
}

} // namespace

MpegFrameReader::MpegFrameReader(TypeTagMpeg& record, std::span<const std::byte> bytes, std::int32_t position,
                                 std::int32_t file_size)
    : record_{record},
      bytes_{bytes},
      position_{position},
      file_size_{file_size},
      h0_{byte_at(1)},
      h1_{byte_at(2)},
      h2_{byte_at(3)} {}

bool MpegFrameReader::read(bool strict) {
    try {
        if (!read_header(strict))
            return false;
        read_flags();
        read_mode();
        const bool variable_rate = read_xing() || read_vbri();
        return variable_rate || !strict || record_.Mpeg() != "2.0";
    } catch (const Failure&) {
        return false;
    }
}

// No bit of the sync beyond the 0xFF is asked for; what follows must make sense instead.
bool MpegFrameReader::read_header(bool strict) {
    const unsigned version = bits(h0_, 3, 2);
    const unsigned layer = bits(h0_, 1, 2);
    if (layer == 0 || (strict && layer == layer_i))
        return false;
    const int rate = mpeg_tables::bit_rate[2 * (layer - 1) + bits(h0_, 3, 1)][bits(h1_, 4, 4)];
    const int hertz = frequency(version);
    if (rate == 0 || hertz == 0)
        return false;

    record_.set_Valide(true);
    record_.set_EntetePos(position_);
    record_.set_Mpeg(mpeg_tables::version[version]);
    record_.set_Layer(mpeg_tables::layer[layer]);
    record_.set_BitRate(rate);
    record_.set_Frequence(hertz);
    record_.set_Padded(bits(h1_, 1, 1) != 0);
    // Whole bytes a frame; the padding counts once a file.
    const double frame_bytes = Fix(double(rate) * (layer == layer_i ? 12 : 144) / hertz * 1000);
    record_.set_Frames(to_long(Fix(file_size_ / frame_bytes + (record_.Padded() ? 1 : 0))));
    record_.set_Taille(file_size_);
    record_.set_Duree(to_long(Fix((double(file_size_) - position_) * 8 / 1000 / rate)));
    return true;
}

void MpegFrameReader::read_flags() {
    record_.set_CRC(bits(h0_, 0, 1) == 0);
    record_.set_PrivateBit(bits(h1_, 0, 1) != 0);
    record_.set_Copyright(bits(h2_, 3, 1) != 0);
    record_.set_Original(bits(h2_, 2, 1) != 0);
    record_.set_Emphasis(mpeg_tables::emphasis[bits(h2_, 0, 2)]);
}

void MpegFrameReader::read_mode() {
    const unsigned mode = bits(h2_, 6, 2);
    record_.set_Mode(mpeg_tables::channel_mode[mode]);
    if (mode != joint_stereo)
        return;
    const unsigned extension = bits(h2_, 4, 2);
    if (record_.Layer() == "III")
        record_.set_ModeExt(mpeg_tables::ms_and_intensity[extension]);
    else
        record_.set_ModeExt("Bands " + std::string{mpeg_tables::first_intensity_band[extension]} + " to 31");
}

// The frequency is that of MPEG-1 whatever the version, halved for MPEG 2.5.
bool MpegFrameReader::read_xing() {
    const std::size_t block = side_information_end();
    if (!says_at(block, "XING"))
        return false;
    record_.set_Vbr("VBR");
    record_.set_Frequence(frequency_of_variable_rate(mpeg_1_row));
    const unsigned flags = byte_at(block + 7);
    const bool tells_frames = (flags & 1U) != 0;
    const bool tells_size = (flags & 2U) != 0;
    if (tells_frames)
        record_.set_Frames(big_endian_at(block + 8));
    else
        record_.set_Valide(false);
    const std::int32_t stream = tells_size ? big_endian_at(block + 12) : file_size_;
    if (tells_frames)
        set_variable_rate(double(stream) - position_);
    return true;
}

// Its place is fixed, whatever the channels.
bool MpegFrameReader::read_vbri() {
    constexpr std::size_t block = 36;
    if (!says_at(block, "VBRI"))
        return false;
    record_.set_Vbr("VBRI");
    record_.set_Frequence(frequency_of_variable_rate(bits(h0_, 3, 2)));
    const Integer delay = Integer{byte_at(block + 6)} * 256 + Integer{byte_at(block + 7)};
    const std::int32_t stream = big_endian_at(block + 10);
    record_.set_Frames(big_endian_at(block + 14));
    set_variable_rate(double(stream) - position_ - delay.value());
    return true;
}

void MpegFrameReader::set_variable_rate(double stream_bytes) {
    const double kilobits = stream_bytes * 8 / 1000;
    const double rate = Fix(divided(kilobits, Fix(record_.Frames() / frames_a_second - 1)));
    record_.set_BitRate(to_integer(rate));
    record_.set_Duree(to_long(Fix(divided(kilobits, rate))));
}

int MpegFrameReader::frequency(unsigned version_row) const {
    return mpeg_tables::frequency[version_row][bits(h1_, 2, 2)];
}

std::int32_t MpegFrameReader::frequency_of_variable_rate(unsigned version_row) const {
    const bool halved = bits(h0_, 3, 2) == mpeg_2_5_row;
    return to_long(halved ? frequency(version_row) / 2.0 : frequency(version_row));
}

std::size_t MpegFrameReader::side_information_end() const {
    const bool mpeg_1 = bits(h0_, 3, 1) != 0;
    if (mpeg_1)
        return is_mono() ? 21 : 36;
    return is_mono() ? 13 : 21;
}

unsigned MpegFrameReader::byte_at(std::size_t offset) const {
    if (offset >= bytes_.size())
        throw Failure{FailureNumber::past_end_of_file};
    return std::to_integer<unsigned>(bytes_[offset]);
}

std::int32_t MpegFrameReader::big_endian_at(std::size_t offset) const {
    double value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value = value * 256 + byte_at(offset + i);
    return to_long(value);
}

bool MpegFrameReader::says_at(std::size_t offset, std::string_view capitals) const {
    bool same = true;
    for (std::size_t i = 0; i < capitals.size(); ++i) {
        const auto byte = static_cast<char>(byte_at(offset + i));
        const bool small = byte >= 'a' && byte <= 'z';
        same = same && (small ? byte - 'a' + 'A' : byte) == capitals[i];
    }
    return same;
}

} // namespace sonarelle
