#pragma once

#include <optional>
#include <string>

namespace sonarelle {

/// The folder of the files that come with the running program (its pictures). Nothing when there is none.
[[nodiscard]] std::optional<std::string> supplied_files();

/// The same for a program by its path: `../share/sonarelle` beside it where it is installed, else `drawn`, where the
/// build drew them.
[[nodiscard]] std::optional<std::string> supplied_files(const std::string& program, const std::string& drawn);

/// Copies the plain files of `supplied` that `program_folder` doesn't hold yet; makes the folder where it is missing.
/// A file of the same name, in whatever case, is the operator's and stays. Each copy is written beside and renamed, so
/// that a start that is cut short leaves no half picture, and the next one goes on.
/// @throws Failure naming the file that can't be copied; those before it are there.
void fill_program_folder(const std::string& supplied, const std::string& program_folder);

} // namespace sonarelle
