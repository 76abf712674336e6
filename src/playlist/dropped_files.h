#pragma once

#include <string>
#include <vector>

#include "platform/disk.h"

namespace sonarelle {

/// The files of what was dropped, in its order: a folder stands for the sound files in it and in its own folders, by
/// name. What the disk doesn't give is left out.
[[nodiscard]] std::vector<std::string> files_of_drop(Disk& disk, const std::vector<std::string>& paths);

} // namespace sonarelle
