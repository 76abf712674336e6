#pragma once

#include "platform/platform.h"
#include "playlist/list_at_work.h"
#include "state/station_settings.h"

namespace sonarelle {

/// Opens the selected row's file with the audio editor of the settings.
class AudioEditor {
public:
    AudioEditor(const Platform& platform, const StationSettings& settings, ListAtWork& list)
        : platform_{platform},
          settings_{settings},
          list_{list} {}

    void a_modifie_morceau();

private:
    void open(const std::string& path);
    [[nodiscard]] std::string path_of_selected_row();

    const Platform& platform_;
    const StationSettings& settings_;
    ListAtWork& list_;
};

} // namespace sonarelle
