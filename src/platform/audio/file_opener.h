#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "platform/audio/length_cache.h"
#include "platform/audio/prepared_files.h"
#include "platform/audio/sound_files.h"
#include "platform/disk_patience.h"
#include "platform/lengths_ahead.h"

namespace sonarelle {

/// Opens files for playing and measures them, each as seldom as it can. From the window thread.
class FileOpener {
public:
    FileOpener(std::shared_ptr<SoundFiles> files, DiskPatience patience)
        : files_{std::move(files)},
          patience_{std::move(patience)} {}

    /// Opens and measures; may read the whole file.
    /// @throws Failure 53, 57 (also when the disk doesn't answer in time), 70 or 1001.
    [[nodiscard]] PreparedFile open(const std::string& path);

    /// Measures files ahead, with as much patience.
    [[nodiscard]] std::unique_ptr<LengthsAhead>
    measure_ahead(std::function<std::string(std::string_view)> resolve) const;

    /// Takes back a file of which nothing has been played.
    void keep(PreparedFile file) { prepared_.keep(std::move(file)); }
    void forget_old() { prepared_.forget_old(); }

private:
    std::shared_ptr<SoundFiles> files_;
    DiskPatience patience_;
    PreparedFiles prepared_;
    LengthCache lengths_;
};

} // namespace sonarelle
