#pragma once

#include <string>
#include <string_view>

#include "platform/drive_table.h"

namespace sonarelle {

/// The drive table lies in one JSON file of this machine: {"C": "/", "D": "/srv/musique"}.

/// The table of a file; without the file, the first one. A relative folder begins at the file's own.
/// @throws Failure 57, naming the file, when it is damaged, 75 without rights.
[[nodiscard]] DriveTable load_drive_table(const std::string& file);

/// Writes the whole table; a damaged file is set aside first. @throws Failure 75 without rights.
void save_drive_table(const std::string& file, const DriveTable& table);

/// Sets a drive in the file, whatever another program sets meanwhile. A relative folder, as typed on a command line,
/// becomes absolute. @throws Failure 68 for a name that is no drive.
void set_saved_drive(const std::string& file, std::string_view drive, std::string_view machine_folder);
void remove_saved_drive(const std::string& file, std::string_view drive);

/// The text of the file, and back. @throws Failure 57, without a source, when it holds no table.
[[nodiscard]] DriveTable parsed_drive_table(std::string_view json, const std::string& relative_to);
[[nodiscard]] std::string drive_table_text(const DriveTable& table);

/// The absolute form of a machine's path as typed on a command line: without `.` and `..`, links left as they are.
[[nodiscard]] std::string absolute_machine_path(std::string_view path);

/// The station's form of a machine's path as typed on a command line.
/// @throws Failure 52, naming the path and the character, when a name of it can't stand in a path of the station, 68
/// when no drive reaches it.
[[nodiscard]] std::string station_path_of(const DriveTable& table, std::string_view machine_path);

} // namespace sonarelle
