#pragma once

#include <array>
#include <string_view>

namespace sonarelle::mpeg_tables {

// Rows by the two version bits, and by the two layer bits.
inline constexpr std::array<std::string_view, 4> version{"2.5", "Réservé", "2.0", "1.0"};
inline constexpr std::array<std::string_view, 4> layer{"Réservé", "III", "II", "I"};

inline constexpr std::array<std::string_view, 4> channel_mode{"Stereo", "Joint Stereo", "Double Cha", "Mono"};
inline constexpr std::array<std::string_view, 4> first_intensity_band{"4", "8", "12", "16"};
inline constexpr std::array<std::string_view, 4> ms_and_intensity{
    "Stereo : OFF - MS Stereo : OFF", "Stereo : ON - MS Stereo : OFF", "Stereo : OFF - MS Stereo : ON",
    "Stereo : ON - MS Stereo : ON"};
inline constexpr std::array<std::string_view, 4> emphasis{"Aucun", "50/15 ms", "Réservé", "CCIT J.17"};

// Kilobits a second, ISO/IEC 11172-3 and 13818-3; MPEG 2.5 has the rates of MPEG-2.
inline constexpr std::array<std::array<int, 16>, 6> bit_rate{{
    {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160, 0},         // MPEG-2 Layer III
    {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 0},     // MPEG-1 Layer III
    {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160, 0},         // MPEG-2 Layer II
    {0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384, 0},    // MPEG-1 Layer II
    {0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256, 0},    // MPEG-2 Layer I
    {0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448, 0}, // MPEG-1 Layer I
}};

// Hertz, rows by version.
inline constexpr std::array<std::array<int, 4>, 4> frequency{
    {{11025, 12000, 8000, 0}, {0, 0, 0, 0}, {22050, 24000, 16000, 0}, {44100, 48000, 32000, 0}}};

} // namespace sonarelle::mpeg_tables
