#pragma once

#include <iosfwd>
#include <optional>
#include <string>

#include "app/outil/programme.h"
#include "platform/drive_table.h"

namespace sonarelle {

class HostSettings;

/// A programme live.
struct LiveProgramme {
    Programme programme;
    std::optional<std::string> output; ///< A device's name; nothing: the default one; `aucune`: paced by the clock.
    bool shows_journal = false;        ///< Its lines instead of the events.
    DriveTable drives;
    std::string program_folder; ///< In the station's form.
};

/// Runs it until its length is over, or until SIGINT or SIGTERM, and writes what happens as it happens.
/// @throws Failure for a list that can't be read.
void run_on_air(const LiveProgramme& live, HostSettings& settings, std::ostream& out);

} // namespace sonarelle
