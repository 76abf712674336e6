#pragma once

#include <iosfwd>
#include <span>
#include <string_view>

#include "app/common/arguments.h"
#include "app/common/common_options.h"

namespace sonarelle {

/// What a command works with. It writes its results to `out` and reports through Failure.
struct Call {
    const Arguments& arguments;
    const CommonOptions& options;
    std::istream& in;
    std::ostream& out;
};

/// Thrown when the refusals have been told file by file, and the rest is done: the status is 1.
struct AlreadyTold {};

/// A word of the command line, what stands behind it, and the options that it knows.
struct Command {
    std::string_view words; ///< As typed: "liste voir".
    std::string_view usage;
    std::span<const Option> options;
    void (*run)(const Call& call);
};

/// For results that a program reads, one JSON value a line.
inline constexpr Option json_option{"--json", false};

[[nodiscard]] std::span<const Command> list_commands();
[[nodiscard]] std::span<const Command> append_commands();
[[nodiscard]] std::span<const Command> conversion_commands();
[[nodiscard]] std::span<const Command> computing_commands();
[[nodiscard]] std::span<const Command> mix_commands();
[[nodiscard]] std::span<const Command> tag_commands();
[[nodiscard]] std::span<const Command> settings_commands();
[[nodiscard]] std::span<const Command> drive_commands();
[[nodiscard]] std::span<const Command> sound_commands();
[[nodiscard]] std::span<const Command> air_commands();

} // namespace sonarelle
