#include "platform/host/known_programs.h"

#include <algorithm>
#include <array>

#include "platform/paths.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

using Name = std::string_view;

constexpr std::array<Name, 9> text_viewers{"gnome-text-editor", "gedit",   "kate",    "kwrite", "mousepad", "xed",
                                           "featherpad",        "leafpad", "xdg-open"};
constexpr std::array<Name, 3> cd_players{"kscd", "gnome-cd", "vlc cdda://"};
constexpr std::array<Name, 6> media_players{"vlc", "totem", "celluloid", "smplayer", "parole", "mpv --force-window"};
constexpr std::array<Name, 6> volume_controls{
    "pavucontrol", "pavucontrol-qt", "mate-volume-control", "kmix", "gnome-control-center sound", "xfce4-mixer"};
constexpr std::array<Name, 4> information{"hardinfo2", "hardinfo", "kinfocenter", "gnome-control-center info-overview"};

constexpr std::array programs{
    KnownProgram{"write", text_viewers},         KnownProgram{"cdplayer.exe", cd_players},
    KnownProgram{"wmplayer.exe", media_players}, KnownProgram{"sndvol32.exe", volume_controls},
    KnownProgram{"msinfo32.exe", information},
};

} // namespace

const KnownProgram* known_program(std::string_view program) {
    const std::string name = lower_case(std::string{name_of_path(program)});
    const auto* found = std::ranges::find(programs, name, &KnownProgram::name);
    return found == programs.end() ? nullptr : found;
}

} // namespace sonarelle
