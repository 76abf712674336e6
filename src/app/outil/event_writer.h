#pragma once

#include <functional>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <utility>

#include "platform/simulated/scripted_dialogs.h"
#include "platform/units.h"
#include "playout/on_air_event.h"

namespace sonarelle {

/// Writes what happens on the air, one JSON line an event, in order, and keeps the account of the last line.
class EventWriter {
public:
    using Json = nlohmann::ordered_json;

    /// Takes a line with its end of line; false when it was lost.
    using Sink = std::function<bool(std::string)>;

    /// Where lines are lost, the next one that isn't stands behind a warning that says how many.
    explicit EventWriter(Sink sink)
        : sink_{std::move(sink)} {}

    /// What comes is told in seconds from here; at first from the station's own beginning.
    void count_from(Frames origin) { origin_ = origin; }

    void write(Frames now, const OnAirEvent& event);
    void write(Frames at, const Question& question);
    void write_warning(Frames at, const std::string& text);
    void write_end_of_file(Frames at, int deck);
    /// Adds to the account.
    void add_silence(Frames span) { silence_ += span; }
    void add_load(double milliseconds) { longest_load_ms_ = std::max(longest_load_ms_, milliseconds); }
    [[nodiscard]] int starts() const { return starts_; }
    /// The last line.
    void write_account(Frames at);

private:
    void line(Frames at, std::string_view event, const Json& fields);
    void give(Frames at, std::string line);

    Sink sink_;
    int lost_ = 0;
    Frames origin_;
    int starts_ = 0;
    Frames silence_;
    double longest_load_ms_ = 0;
};

} // namespace sonarelle
