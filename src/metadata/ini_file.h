#pragma once

#include <string_view>

#include "platform/disk.h"

namespace sonarelle {

/// Sets one key of an initialisation file, which is made where it is missing. Section and key are found without regard
/// to case, the first of each counts; a missing key comes last in its section, a missing section last in the file. All
/// other bytes stay. The file holds Windows-1252 and is replaced whole.
/// @throws Failure 5 for a line break in any of the texts, or a character that Windows-1252 lacks; the disk's own.
void write_ini_value(Disk& disk, std::string_view path, std::string_view section, std::string_view key,
                     std::string_view value);

} // namespace sonarelle
