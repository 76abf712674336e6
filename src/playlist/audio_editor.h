#pragma once

#include "platform/platform.h"
#include "playlist/list_guard.h"
#include "playlist/liste_son.h"
#include "playlist/row_reading.h"
#include "state/station_settings.h"

namespace sonarelle {

/// Opens the selected row's file with the audio editor of the settings.
class AudioEditor {
public:
    AudioEditor(const Platform& platform, const StationSettings& settings, Liste_son& window, ListGuard& guard,
                RowReading& reading)
        : platform_{platform},
          settings_{settings},
          window_{window},
          guard_{guard},
          reading_{reading} {}

    void a_modifie_morceau();

private:
    void open(const std::string& path);
    [[nodiscard]] std::string path_of_selected_row();
    void tell(const std::string& text);

    const Platform& platform_;
    const StationSettings& settings_;
    Liste_son& window_;
    ListGuard& guard_;
    RowReading& reading_;
};

} // namespace sonarelle
