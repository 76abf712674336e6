#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "platform/units.h"
#include "station/station.h"

namespace sonarelle {

class DriveTable;
class ScriptedDialogs;

/// What the operator's hands do at a time of the rehearsal.
struct Gesture {
    Frames at;
    std::function<void(Station&, ScriptedDialogs&)> act;
};

/// Reads lines of `SECONDES GESTE`; empty lines and those that begin with # are left out.
/// Files may be paths of this machine.
/// @throws Failure naming `source`, the line and what is wrong with it.
[[nodiscard]] std::vector<Gesture> read_gestures(std::istream& in, const std::string& source, const DriveTable& drives);

} // namespace sonarelle
