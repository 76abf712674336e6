#pragma once

#include <array>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "app/outil/deck_watch.h"
#include "platform/units.h"
#include "playout/on_air_event.h"

namespace sonarelle {

/// A drawing of a run: a lane for each deck, with a bar for each span that was played, a slope where it faded, and red
/// where the air was silent.
class AirPicture {
public:
    explicit AirPicture(DeckWatch& watch)
        : watch_{watch} {}

    void take(Frames at, const OnAirEvent& event);
    /// No deck gets a command between these instants.
    void advance(Frames now, Frames next);
    void add_silence(Frames from, Frames span) { silences_.push_back({from, from + span}); }

    [[nodiscard]] std::string svg(Frames length) const;

private:
    struct Stretch {
        Frames from;
        Frames to;
    };
    struct Bar {
        int deck = 0;
        std::string label;
        Stretch played;
        std::optional<Frames> fades_from;
        bool open = true;
    };

    class Scale;

    [[nodiscard]] Bar* open_bar(int deck);
    static void draw_bar(std::ostream& out, const Scale& scale, const Bar& bar);
    static void draw_times(std::ostream& out, const Scale& scale, Frames length);

    DeckWatch& watch_;
    std::vector<Bar> bars_;
    std::vector<Stretch> silences_;
    std::array<std::string, 3> labels_;
};

} // namespace sonarelle
