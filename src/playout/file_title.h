#pragma once

#include <string>
#include <string_view>

namespace sonarelle {

/// A file as its name is shown.
struct FileTitle {
    std::string name;      ///< The path's last part without its last four characters.
    std::string extension; ///< Its last three characters, lower case.
};

[[nodiscard]] FileTitle title_of(std::string_view path);

/// A name of 23 characters and more as its first 23 and dots, all in lower case.
[[nodiscard]] std::string short_title(const std::string& name);
/// Its first characters and dots, where there are more than so many.
[[nodiscard]] std::string cut_title(const std::string& name, std::size_t longest);

} // namespace sonarelle
