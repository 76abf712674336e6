#pragma once

#include <optional>
#include <string>

namespace sonarelle {

/// Where the station's own files lie on this machine.
struct HostFolders {
    std::string program;       ///< The folder of the lists, the journal and the pictures.
    std::string settings;      ///< The settings file.
    std::string drive_table;   ///< The file of the drive table, beside it.
    std::string output_choice; ///< The file of the chosen sound output, there too.
    std::string waveforms;     ///< The folder of what can be made anew: the waveforms of files.
};

/// The folders of the user, by the XDG variables, or with `folder` all in that one. Names alone: a folder is made by
/// the first write into it, so that looking leaves nothing behind.
[[nodiscard]] HostFolders host_folders(const std::optional<std::string>& folder);

/// A folder of this user alone among the temporary ones, the same at each call, for a station whose own can't be had.
/// @throws Failure 75 when there is none.
[[nodiscard]] std::string spare_folder();

} // namespace sonarelle
