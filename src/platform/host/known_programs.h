#pragma once

#include <span>
#include <string_view>

namespace sonarelle {

/// Programs of another system that the station's menus name, with what does the same on this one.
struct KnownProgram {
    std::string_view name;                       ///< Lower case, without a folder.
    std::span<const std::string_view> instead{}; ///< Tried in this order; a word behind a blank is an argument.
};

/// The row of a program, by its path or its bare name in any case; none for a program that is taken as it is.
[[nodiscard]] const KnownProgram* known_program(std::string_view program);

} // namespace sonarelle
