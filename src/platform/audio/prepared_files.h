#pragma once

#include <chrono>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/audio/decoder.h"
#include "platform/disk.h"

namespace sonarelle {

/// A file opened for playing of which nothing has been played yet: a decoder, and what it gave first.
struct PreparedFile {
    std::string path; ///< On this machine.
    FileFacts facts;
    double seconds = 0; ///< Its length.
    std::unique_ptr<Decoder> decoder;
    std::vector<float> opening; ///< From frame 0 on, two floats a frame.
};

/// Keeps the few files that were opened last and given up unplayed: a chain opens the same file several times around
/// one start. They are kept for seconds, so that no disk stays busy.
class PreparedFiles {
public:
    using Instant = std::chrono::steady_clock::time_point;

    void keep(PreparedFile file, Instant now = std::chrono::steady_clock::now());
    /// What was prepared of this path; the file may have changed since.
    [[nodiscard]] std::optional<PreparedFile> take(const std::string& path);
    void forget_old(Instant now = std::chrono::steady_clock::now());

private:
    struct Kept {
        PreparedFile file;
        Instant since;
    };
    std::list<Kept> files_; // newest first
};

} // namespace sonarelle
