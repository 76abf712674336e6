#pragma once

#include <string>

#include "app/common/machine.h"
#include "platform/audio/file_opener.h"
#include "platform/host/host_disk.h"
#include "platform/numbers.h"

namespace sonarelle {

/// A file as a deck and the file manager see it.
struct Measure {
    std::string file; ///< As typed.
    std::string station_path;
    double seconds = 0;
    Integer whole_seconds;    ///< Rounded; one at least.
    std::string title_text;   ///< What a deck's title shows.
    std::string manager_text; ///< What the file manager shows.
    bool has_pictures = false;
};

/// Opens files as a deck does and takes their length.
class Measuring {
public:
    explicit Measuring(Machine& machine);

    /// @throws Failure, naming the file, when it can't be played.
    [[nodiscard]] Measure measure(const std::string& file);

    /// The genre that the file's tag names; empty without one.
    [[nodiscard]] std::string genre_of(const std::string& file);

private:
    Machine& machine_;
    HostDisk disk_;
    FileOpener opener_;
};

} // namespace sonarelle
