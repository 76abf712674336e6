#include "playlist/volume_table.h"

#include <algorithm>
#include <array>

namespace sonarelle {

namespace {

struct VolumeRow {
    int percent;
    int attenuation;
};

constexpr std::array volume_rows{
    VolumeRow{0, -4000},  VolumeRow{10, -3800}, VolumeRow{15, -3400}, VolumeRow{20, -3200}, VolumeRow{25, -3000},
    VolumeRow{30, -2800}, VolumeRow{35, -2600}, VolumeRow{40, -2400}, VolumeRow{45, -2200}, VolumeRow{50, -2000},
    VolumeRow{55, -1800}, VolumeRow{60, -1600}, VolumeRow{65, -1400}, VolumeRow{70, -1200}, VolumeRow{75, -1000},
    VolumeRow{80, -800},  VolumeRow{85, -600},  VolumeRow{90, -400},  VolumeRow{95, -200},  VolumeRow{100, 0},
};

std::optional<int> look_up(int value, int VolumeRow::*from, int VolumeRow::*to) {
    const auto* found = std::ranges::find(volume_rows, value, from);
    return found == volume_rows.end() ? std::nullopt : std::optional{found->*to};
}

} // namespace

std::optional<int> attenuation_of_percent(int percent) {
    return look_up(percent, &VolumeRow::percent, &VolumeRow::attenuation);
}

std::optional<int> percent_of_attenuation(int attenuation) {
    return look_up(attenuation, &VolumeRow::attenuation, &VolumeRow::percent);
}

} // namespace sonarelle
