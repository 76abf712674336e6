#pragma once

#include <optional>
#include <string>
#include <vector>

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
    std::string program_folder;    ///< In the station's form.
    std::vector<std::string> told; ///< What the start has to say.
};

/// Runs it until its length is over, or until SIGINT, SIGTERM or SIGHUP, and writes what happens to the standard output
/// as it happens. Whether anyone reads it makes no difference to the air.
/// @throws Failure for a list that can't be read, and at the end 57 when lines found no reader.
void run_on_air(const LiveProgramme& live, HostSettings& settings);

} // namespace sonarelle
