#pragma once

#include "platform/platform.h"
#include "state/list_state.h"
#include "state/station_settings.h"
#include "windows/antenne_fm.h"

namespace sonarelle {

/// The entries of the desk that take no part in the chain: programs around the station, the CD drive's door, dragging,
/// the remembered search words, the visual effect and the volume sliders.
class DeskCommands {
public:
    DeskCommands(const Platform& platform, StationSettings& settings, ListState& list, Antenne_FM& window)
        : platform_{platform},
          settings_{settings},
          list_{list},
          window_{window} {}

    void start_cd_player();
    void open_volume_control();
    /// At what the guide says of a window.
    void open_help(const Window& asker);
    void open_cd_door() { move_cd_door(true); }
    void close_cd_door() { move_cd_door(false); }

    void toggle_dragging();
    void forget_search_words();

    void switch_effect_on() { set_effect(true); }
    void switch_effect_off() { set_effect(false); }
    void show_oscilloscope() { choose_sound_picture(SoundPicture::oscilloscope); }
    void show_spectrum() { choose_sound_picture(SoundPicture::spectrum); }
    /// Shows the effect, or not, without storing it.
    void show_effect(bool on);

    void show_sliders() { set_sliders(true); }
    void hide_sliders() { set_sliders(false); }

private:
    [[nodiscard]] bool start(std::string_view program);
    void move_cd_door(bool open);
    void set_effect(bool on);
    void choose_sound_picture(SoundPicture picture);
    void set_sliders(bool shown);

    const Platform& platform_;
    StationSettings& settings_;
    ListState& list_;
    Antenne_FM& window_;
};

} // namespace sonarelle
