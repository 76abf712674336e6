#pragma once

#include <string>

namespace sonarelle {

/// What happened on the air, for whoever follows a run.
struct OnAirEvent {
    enum class Kind { loaded, started, fade_began, cut, inserted, removed, stopped };

    Kind kind = Kind::started;
    int deck = 0;
    int row = 0;
    std::string path;
    std::string end; ///< End point of a loaded deck, seconds as text.
    int overlap = 0; ///< Seconds, of a started deck.
    int load_lead = 0;
    std::string text; ///< Why a list was stopped.
};

} // namespace sonarelle
