#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "platform/disk_patience.h"
#include "platform/drive_table.h"

namespace sonarelle {

/// Which files of a list are not there, for the eye. The disk is asked on a thread of its own, so that a share which is
/// gone holds up nobody; until it has answered a file counts as there. An answer is asked for anew when it is some
/// seconds old. From the window thread.
class FilePresence {
public:
    explicit FilePresence(const DriveTable& drives, std::chrono::milliseconds fresh_for = std::chrono::seconds{15});
    ~FilePresence();
    FilePresence(const FilePresence&) = delete;
    FilePresence& operator=(const FilePresence&) = delete;

    /// A path of the station. One on a share by its network name counts as there: nobody looks there before it plays.
    [[nodiscard]] bool is_missing(const std::string& path);
    /// Whether an answer was another one than before, since this was last asked.
    [[nodiscard]] bool has_news();

private:
    struct Known;
    std::shared_ptr<Known> known_; // the helper's too
    std::chrono::milliseconds fresh_for_;
    DiskHelper helper_;
};

} // namespace sonarelle
