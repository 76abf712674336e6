#pragma once

#include <string>
#include <string_view>

#include "platform/drive_table.h"

namespace sonarelle {

/// The absolute form of a machine's path as typed on a command line: without `.` and `..`, links left as they are.
[[nodiscard]] std::string absolute_machine_path(std::string_view path);

/// The station's form of a machine's path as typed on a command line.
/// @throws Failure 52, naming the path and the character, when a name of it can't stand in a path of the station, 68
/// when no drive reaches it.
[[nodiscard]] std::string station_path_of(const DriveTable& table, std::string_view machine_path);

} // namespace sonarelle
