#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/audio/wav_file_output.h"
#include "platform/host/safe_file.h"

namespace sonarelle {

/// The files that a rehearsal writes. Each is written beside the one that it replaces: what was there stays until the
/// run is over, and for good when it fails.
class RehearsalOutputs {
public:
    /// Paths of this machine; what isn't wanted is nothing.
    /// @throws Failure 75 for a file that can't be written, 5 when both are one file.
    RehearsalOutputs(const std::optional<std::string>& rendering, const std::optional<std::string>& picture);

    void render(std::span<const float> frames);
    /// Puts the rendering in its place.
    void finish_rendering();
    void write_picture(std::string_view svg);

private:
    std::optional<SafeFile> rendering_file_;
    std::optional<WavFileOutput> rendering_;
    std::optional<SafeFile> picture_file_;
};

/// Tells files that a rehearsal reads from those that it writes, by what they are on the disk and not by their names.
class OutputGuard {
public:
    /// The outputs' paths; nothing for one that isn't wanted.
    OutputGuard(const std::optional<std::string>& rendering, const std::optional<std::string>& picture)
        : outputs_{rendering, picture} {}

    /// @throws Failure 5, naming the output that this file of the machine is, and what it is there.
    void check(const std::string& read_file, std::string_view what) const;
    [[nodiscard]] bool has_something_to_lose() const;

private:
    std::array<std::optional<std::string>, 2> outputs_;
};

} // namespace sonarelle
