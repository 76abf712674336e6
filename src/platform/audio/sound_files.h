#pragma once

#include <memory>
#include <string>

#include "platform/disk.h"

namespace sonarelle {

/// Where the decoders get their bytes, by paths of this machine. From any thread; calls block for as long as the disk
/// does. An open file is used by one thread at a time.
class SoundFiles {
public:
    virtual ~SoundFiles() = default;

    /// @throws Failure 53 for a file that isn't there, 70 for one that may not be read, 57 when the disk fails.
    [[nodiscard]] virtual FileFacts facts(const std::string& path) = 0;
    [[nodiscard]] virtual std::unique_ptr<RecordFile> open(const std::string& path) = 0;
};

/// The files of this machine.
class MachineFiles final : public SoundFiles {
public:
    [[nodiscard]] FileFacts facts(const std::string& path) override;
    [[nodiscard]] std::unique_ptr<RecordFile> open(const std::string& path) override;
};

} // namespace sonarelle
