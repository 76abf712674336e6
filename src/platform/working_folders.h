#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace sonarelle {

/// An absolute path of the station in its parts.
struct PathParts {
    std::string drive;              ///< `D:`, its letter a capital, or `\\serveur\partage`.
    std::vector<std::string> names; ///< From the root down.
};

/// @throws Failure 68 for a path that begins with neither a drive nor a share.
[[nodiscard]] PathParts parts_of(std::string_view absolute_path);

/// The drive that a name means, as `parts_of` spells it: of `d` or `d:`, or of a share alone.
/// @throws Failure 68 for any other name.
[[nodiscard]] std::string drive_named(std::string_view name);

/// The letter that a path begins with, as a capital. @throws Failure 68 without one.
[[nodiscard]] char drive_letter_of(std::string_view path);

/// A folder, and what names in it are meant: * and ? stand in the last part of a path alone.
struct PathPattern {
    std::string folder; ///< Absolute.
    std::string name;

    [[nodiscard]] bool is_one_name() const { return name.find_first_of("*?") == std::string::npos; }
};

/// Where relative names resolve: a current drive, and on each drive a current folder, its root at first. With a share's
/// folder as the current one names resolve there, until a drive or its folder is made current again. A matter of names
/// alone, no disk is asked. Both slashes part names.
class WorkingFolders {
public:
    [[nodiscard]] char drive() const { return drive_; }
    void set_drive(char letter);

    /// Where relative names resolve now.
    [[nodiscard]] std::string folder() const { return share_folder_.empty() ? folder_of_drive(drive_) : share_folder_; }
    /// Makes an absolute folder the current one of its drive, or of its share.
    void set_folder(std::string_view absolute_folder);

    /// The absolute form of a name, without `.`, `..` and doubled or final backslashes; a drive's root keeps its
    /// backslash.
    /// @throws Failure 68 for a share without its second name.
    [[nodiscard]] std::string absolute(std::string_view path) const;

    /// @throws Failure 52 for a name that stands in no pattern, 68 as `absolute`.
    [[nodiscard]] PathPattern pattern_of(std::string_view path) const;

private:
    [[nodiscard]] std::string folder_of_drive(char letter) const;
    [[nodiscard]] std::string with_drive(std::string_view path) const;

    char drive_ = 'C';
    std::map<char, std::string> folders_;
    std::string share_folder_; // empty when names resolve on a drive
};

} // namespace sonarelle
