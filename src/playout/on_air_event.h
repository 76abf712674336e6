#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/units.h"

namespace sonarelle {

/// A number that was drawn and not taken.
struct PassedOver {
    int number = 0;
    std::string_view reason;
};

/// What happened on the air, for whoever follows a run.
struct OnAirEvent {
    enum class Kind {
        loaded,
        started,
        fade_began,
        cut,
        drawn, ///< A row, in random order.
        inserted,
        removed,
        stopped,
        silence,      ///< For 2 s, while a chain was to play.
        silence_over, ///< After `span`.
        resumed       ///< The list was taken up again after a fault, and `span` of silence.
    };

    Kind kind = Kind::started;
    int deck = 0;
    int row = 0;
    std::string path = {};
    std::string end = {}; ///< End point of a loaded deck, seconds as text.
    int overlap = 0;      ///< Seconds, of a started deck.
    int load_lead = 0;
    std::string text = {};                    ///< Why a list was stopped.
    std::vector<PassedOver> passed_over = {}; ///< On the way to what was drawn.
    int number = 0;                           ///< Of the record that was drawn.
    int among = 0;                            ///< How many there were to draw from.
    Frames span = {};
    Frames ago = {}; ///< How long before now it was.
};

} // namespace sonarelle
