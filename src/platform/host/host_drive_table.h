#pragma once

#include <string>
#include <string_view>

#include "platform/drive_table.h"

namespace sonarelle {

/// The drive table lies in one JSON file of this machine: {"C": "/", "D": "/srv/musique"}.

/// The table of a file; without the file, the first one. A relative folder begins at the file's own.
/// @throws Failure 57, naming the file, when it is damaged, 75 without rights.
[[nodiscard]] DriveTable load_drive_table(const std::string& file);

/// Sets a drive in the file, whatever another program sets meanwhile. A relative folder, as typed on a command line,
/// becomes absolute. A damaged file is set aside as `lecteurs.json.abime`, and the first table begins anew.
/// @throws Failure 68 for a name that is no drive, 75 without rights; nothing is changed then.
void set_saved_drive(const std::string& file, std::string_view drive, std::string_view machine_folder);
/// The same the other way. @throws Failure 68 too for a drive that the table doesn't have.
void remove_saved_drive(const std::string& file, std::string_view drive);

/// The text of the file, and back. @throws Failure 57, without a source, when it holds no table.
[[nodiscard]] DriveTable parsed_drive_table(std::string_view json, const std::string& relative_to);
[[nodiscard]] std::string drive_table_text(const DriveTable& table);

} // namespace sonarelle
