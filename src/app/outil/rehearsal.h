#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "app/outil/gestures.h"
#include "app/outil/programme.h"
#include "platform/drive_table.h"

namespace sonarelle {

/// A programme in virtual time.
struct Rehearsal {
    Programme programme;
    std::optional<std::string> rendering; ///< A WAV file of this machine for what would be heard.
    std::optional<std::string> picture;   ///< An SVG file of this machine for a drawing of the run.
    bool without_sound = false;
    std::vector<Gesture> gestures;
    DriveTable drives;
    std::vector<Setting> stored_settings; ///< Of the user, before those that the programme changes.
};

/// Runs it and writes its events. The list itself is never changed: the station works on a copy in a folder of its own.
/// @throws Failure for a list that can't be read, or a rendering that can't be written.
void run_rehearsal(const Rehearsal& rehearsal, std::ostream& out);

} // namespace sonarelle
