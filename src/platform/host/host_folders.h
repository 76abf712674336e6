#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace sonarelle {

/// Where the station's own files lie on this machine.
struct HostFolders {
    std::string program;     ///< The folder of the lists, the journal and the pictures.
    std::string settings;    ///< The settings file.
    std::string drive_table; ///< The file of the drive table, beside it.
};

/// The folders of the user, by the XDG variables, or with `folder` all in that one. Makes those that are missing.
/// @throws Failure 75 for a folder that can't be made.
[[nodiscard]] HostFolders host_folders(const std::optional<std::string>& folder);

} // namespace sonarelle
