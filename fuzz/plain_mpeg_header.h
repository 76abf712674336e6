#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace sonarelle {

/// What the header reader finds, once more: written for plainness, byte by byte, with no thought of speed.
struct PlainMpegHeader {
    bool Valide = false;
    std::int32_t Taille = 0;
    std::int32_t EntetePos = 0;
    std::int32_t Duree = 0;
    std::string Mpeg = {};
    std::string Layer = {};
    bool CRC = false;
    std::int32_t BitRate = 0;
    std::int32_t Frequence = 0;
    bool Padded = false;
    std::int32_t Frames = 0;
    bool PrivateBit = false;
    std::string Mode = {};
    std::string ModeExt = {};
    bool Copyright = false;
    bool Original = false;
    std::string Emphasis = {};
    std::string Vbr = {};

    friend bool operator==(const PlainMpegHeader&, const PlainMpegHeader&) = default;
};

/// One candidate of the search, from its 0xFF byte. A fault is the exception `Refused`.
class PlainCandidate {
public:
    struct Refused {};

    PlainCandidate(std::string_view file, std::size_t position)
        : file_{file},
          position_{position},
          h0_{byte(1)},
          h1_{byte(2)},
          h2_{byte(3)} {}

    PlainMpegHeader read(bool strict) const {
        PlainMpegHeader out = header(strict);
        if (word(side_information()) == "XING")
            read_xing(out);
        else if (word(36) == "VBRI")
            read_vbri(out);
        if (out.Mpeg == "2.0" && strict && out.Vbr.empty())
            throw Refused{};
        return out;
    }

private:
    PlainMpegHeader header(bool strict) const {
        static const char* const versions[] = {"2.5", "Réservé", "2.0", "1.0"};
        static const char* const layers[] = {"Réservé", "III", "II", "I"};
        static const char* const emphases[] = {"Aucun", "50/15 ms", "Réservé", "CCIT J.17"};
        PlainMpegHeader out;
        out.EntetePos = static_cast<std::int32_t>(position_);
        out.Mpeg = versions[(h0_ & 0x18) / 8];
        out.Layer = layers[(h0_ & 6) / 2];
        out.Valide = out.Mpeg != "Réservé" && out.Layer != "Réservé";
        if (out.Layer != "II" && out.Layer != "III" && strict)
            throw Refused{};
        out.CRC = h0_ % 2 == 0;
        out.BitRate = rate();
        out.Frequence = hertz((h0_ & 0x18) / 8);
        out.Padded = (h1_ & 2) != 0;
        if ((h0_ & 7) == 0 || out.Frequence == 0)
            throw Refused{};
        const double slot = (h0_ & 6) == 6 ? 12 : 144;
        const double length = std::trunc(out.BitRate * slot / out.Frequence * 1000);
        out.Frames = whole(quotient(size(), length) + (out.Padded ? 1 : 0), 31);
        out.PrivateBit = (h1_ & 1) != 0;
        read_mode(out);
        out.Copyright = (h2_ & 8) != 0;
        out.Original = (h2_ & 4) != 0;
        out.Emphasis = emphases[h2_ & 3];
        out.Taille = static_cast<std::int32_t>(file_.size());
        out.Duree = whole((size() - out.EntetePos) * 8 / 1000 / out.BitRate, 31);
        return out;
    }

    void read_mode(PlainMpegHeader& out) const {
        static const char* const modes[] = {"Stereo", "Joint Stereo", "Double Cha", "Mono"};
        static const char* const bands[] = {"Bands 4 to 31", "Bands 8 to 31", "Bands 12 to 31", "Bands 16 to 31"};
        static const char* const stereo[] = {"Stereo : OFF - MS Stereo : OFF", "Stereo : ON - MS Stereo : OFF",
                                             "Stereo : OFF - MS Stereo : ON", "Stereo : ON - MS Stereo : ON"};
        out.Mode = modes[(h2_ & 0xC0) / 64];
        if ((h2_ & 0xC0) == 0x40)
            out.ModeExt = (h0_ & 4) != 0 ? bands[(h2_ & 0x30) / 16] : stereo[(h2_ & 0x30) / 16];
    }

    void read_xing(PlainMpegHeader& out) const {
        const std::size_t at = side_information();
        out.Vbr = "VBR";
        out.Frequence = hertz(3);
        if ((h0_ & 0x18) == 0)
            out.Frequence /= 2;
        const int flags = byte(at + 7);
        if ((flags & 1) != 0)
            out.Frames = four_bytes(at + 8);
        else
            out.Valide = false;
        const double stream = (flags & 2) != 0 ? four_bytes(at + 12) : size();
        if (out.Valide)
            set_rate(out, stream - out.EntetePos);
    }

    void read_vbri(PlainMpegHeader& out) const {
        out.Vbr = "VBRI";
        out.Frequence = hertz((h0_ & 0x18) / 8);
        if ((h0_ & 0x18) == 0)
            out.Frequence = out.Frequence == 11025 ? 5512 : out.Frequence / 2;
        if (byte(42) >= 128)
            throw Refused{};
        const double delay = byte(42) * 256 + byte(43);
        const double stream = four_bytes(46);
        out.Frames = four_bytes(50);
        set_rate(out, stream - out.EntetePos - delay);
    }

    static void set_rate(PlainMpegHeader& out, double bytes) {
        out.BitRate = whole(quotient(bytes * 8 / 1000, std::trunc(out.Frames / 38.0 - 1)), 15);
        out.Duree = whole(quotient(bytes * 8 / 1000, out.BitRate), 31);
    }

    int rate() const {
        static const int low[] = {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160, 0};
        static const int low_i[] = {0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256, 0};
        static const int iii[] = {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 0};
        static const int ii[] = {0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384, 0};
        static const int i[] = {0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448, 0};
        static const int* const rows[] = {low, iii, low, ii, low_i, i};
        const int row = (h0_ & 8) / 8 + (h0_ & 6) - 2;
        if (row < 0)
            throw Refused{};
        return rows[row][h1_ / 16];
    }

    int hertz(int version) const {
        static const int rows[4][4] = {
            {11025, 12000, 8000, 0}, {0, 0, 0, 0}, {22050, 24000, 16000, 0}, {44100, 48000, 32000, 0}};
        return rows[version][(h1_ & 0x0C) / 4];
    }

    std::size_t side_information() const {
        const bool mono = (h2_ & 0xC0) == 0xC0;
        if ((h0_ & 8) != 0)
            return mono ? 21 : 36;
        return mono ? 13 : 21;
    }

    int byte(std::size_t offset) const {
        if (position_ + offset >= file_.size())
            throw Refused{};
        return static_cast<unsigned char>(file_[position_ + offset]);
    }

    std::int32_t four_bytes(std::size_t offset) const {
        const double value =
            byte(offset) * 16777216.0 + byte(offset + 1) * 65536.0 + byte(offset + 2) * 256.0 + byte(offset + 3);
        return whole(value, 31);
    }

    std::string word(std::size_t offset) const {
        std::string text;
        for (std::size_t i = 0; i < 4; ++i) {
            const int one = byte(offset + i);
            text += static_cast<char>(one >= 'a' && one <= 'z' ? one - 32 : one);
        }
        return text;
    }

    /// Towards zero, into a signed number of so many bits beside its sign.
    static std::int32_t whole(double value, int bits) {
        const double cut = std::trunc(value);
        const double limit = std::ldexp(1.0, bits);
        if (!(cut >= -limit && cut < limit))
            throw Refused{};
        return static_cast<std::int32_t>(cut);
    }

    static double quotient(double value, double divisor) {
        if (divisor == 0)
            throw Refused{};
        return value / divisor;
    }

    double size() const { return static_cast<double>(file_.size()); }

    std::string_view file_;
    std::size_t position_;
    int h0_;
    int h1_;
    int h2_;
};

inline PlainMpegHeader plain_mpeg_header(std::string_view file, bool strict) {
    for (std::size_t position = 0; position + 1 < file.size(); ++position) {
        if (file[position] != '\xFF')
            continue;
        if (position + 4 > file.size())
            break;
        if (file[position + 1] == '\0')
            continue;
        try {
            return PlainCandidate{file, position}.read(strict);
        } catch (const PlainCandidate::Refused&) { // The next candidate may be one.
        }
    }
    return {};
}

} // namespace sonarelle
