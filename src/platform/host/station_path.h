#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sonarelle {

/// An absolute path of the station, taken apart.
struct StationPath {
    std::string drive;              ///< A capital letter, or `\\server\share`.
    std::vector<std::string> names; ///< Without `.` and `..`; empty for the drive's root.

    [[nodiscard]] bool is_share() const { return drive.size() > 1; }
    [[nodiscard]] std::string text() const;
};

/// The drive letter that a path begins with, in capitals; 0 without one.
[[nodiscard]] char drive_letter_of(std::string_view path);

/// True for a path that begins with two separators: `\\server\share`.
[[nodiscard]] bool names_a_share(std::string_view path);

/// Adds the names of `rest` to those of `path`: `..` goes up, to the root at most. Both slashes part names.
void append_names(StationPath& path, std::string_view rest);

/// The path of a share, taken apart.
/// @throws Failure 68 when it names no share of a server.
[[nodiscard]] StationPath share_path(std::string_view path);

/// True for a file's name on this machine that a path of the station can hold.
[[nodiscard]] bool can_be_named(std::string_view name);

} // namespace sonarelle
