#pragma once

#include <string>
#include <string_view>

#include "platform/disk.h"

namespace sonarelle {

/// Makes the drive and the folder of a path the current ones.
/// @throws Failure when one of them isn't there or doesn't answer.
void enter_folder_of(Disk& disk, std::string_view path);

/// Whether the disk lists a file under its own name, whatever the case: a name with a wild card is found as another's.
[[nodiscard]] bool is_listed(Disk& disk, std::string_view path);

enum class FileState {
    present,
    missing,
    folder_missing,
    on_network ///< A share's file isn't looked for, as the chain doesn't: it counts as present.
};

/// What became of looking for a row's file.
struct FileFinding {
    FileState state = FileState::present;
    std::string folder; ///< Where it should lie, with a backslash at its end.
};

/// Looks for the file of a row, and makes its drive and folder the current ones on the way. A path without a file name
/// counts as present.
/// @throws Failure for what is no answer: no rights, a disk's fault.
[[nodiscard]] FileFinding look_for_file(Disk& disk, std::string_view path);

} // namespace sonarelle
