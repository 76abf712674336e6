#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "platform/disk_patience.h"
#include "platform/drive_table.h"
#include "platform/waveform.h"

namespace sonarelle {

/// Waveforms of the files on the decks. A file is read once, on a thread that works only while nobody else needs the
/// processor or, where the system knows how, the disk; then the user's cache has it. A disk that hangs keeps that
/// thread and nothing else. From the window thread.
class Waveforms {
public:
    /// `cache_folder` is made when there is something to keep. After so long a file is looked at again: an editor may
    /// have cut it.
    Waveforms(const DriveTable& drives, std::string cache_folder,
              std::chrono::milliseconds fresh_for = std::chrono::seconds{15});
    ~Waveforms();
    Waveforms(const Waveforms&) = delete;
    Waveforms& operator=(const Waveforms&) = delete;

    /// Of a path of the station. Null until it is there, and for a file that can't be read; what was asked for last is
    /// read first.
    [[nodiscard]] std::shared_ptr<const Waveform> of(const std::string& path);

private:
    struct Work;
    std::shared_ptr<Work> work_; // the helper's too
    std::chrono::milliseconds fresh_for_;
    DiskHelper helper_;
};

} // namespace sonarelle
