#pragma once

#include <string>
#include <string_view>

namespace sonarelle {

/// Paths in the station's own form: `D:\Musique\titre.mp3`, `\\serveur\partage\titre.mp3`.

/// Behind the last backslash; the whole text when there is none.
[[nodiscard]] std::string_view name_of_path(std::string_view path);
/// Before the last backslash; a drive's root keeps its backslash; empty when there is none.
[[nodiscard]] std::string_view folder_of_path(std::string_view path);
/// A backslash at the end of a folder of more than 3 characters.
[[nodiscard]] std::string with_backslash(std::string_view folder);
/// Folder and name with exactly one backslash between them.
[[nodiscard]] std::string join_path(std::string_view folder, std::string_view name);
/// The last three characters, in lower case.
[[nodiscard]] std::string extension_of(std::string_view path);
/// True for `\\…` and any path that begins with a backslash.
[[nodiscard]] bool is_network_path(std::string_view path);
/// What stands in no name, and of that what stands in no pattern either.
inline constexpr std::string_view forbidden_in_names{"*?<>|\""};
inline constexpr std::string_view forbidden_in_patterns = forbidden_in_names.substr(2);
/// True for a name that no file can have, because of a forbidden character in it.
[[nodiscard]] bool has_forbidden_character(std::string_view name);
/// Refuses what no file can be called, so that a wrong name never reads as a missing file.
/// @throws Failure 52 for a forbidden character, a null byte, or a character that Windows-1252 lacks.
void check_path(std::string_view path);
/// Whether a file name fits a pattern of * and ?, ignoring case. `.*` at the end fits a name without a point too.
[[nodiscard]] bool matches_pattern(std::string_view name, std::string_view pattern);

} // namespace sonarelle
