#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace sonarelle {

/// Where the drives of the station's paths lie on this machine: a letter ("D") or a share (`\\serveur\partage`) to a
/// folder. `C` is the machine's root at first.
class DriveTable {
public:
    DriveTable();

    /// @throws Failure 68 for a name that is neither a letter nor a share.
    void set(std::string_view drive, std::string_view machine_folder);
    /// Whether the drive was there.
    bool remove(std::string_view drive);
    [[nodiscard]] const std::map<std::string, std::string>& entries() const { return folders_; }

    /// The machine's path of an absolute path of the station, as it is spelt there.
    /// @throws Failure 68 when no drive reaches it.
    [[nodiscard]] std::string machine_path(std::string_view path) const;

    /// The station's path of an absolute path of the machine, by the drive whose folder is the longest that holds it;
    /// nothing when no drive reaches it.
    [[nodiscard]] std::optional<std::string> station_path(std::string_view machine_path) const;

private:
    std::map<std::string, std::string>
        folders_; // capital letter or \\server\share in lower case -> folder without final /
};

} // namespace sonarelle
