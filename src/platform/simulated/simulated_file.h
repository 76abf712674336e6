#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/disk.h"
#include "platform/simulated/disk_faults.h"
#include "platform/simulated/disk_tree.h"

namespace sonarelle {

class SimulatedDisk;

/// A file of a simulated disk, opened for reading.
class SimulatedFile : public RecordFile {
public:
    SimulatedFile(const DiskFaults& faults, std::string path, std::shared_ptr<const FileContent> content)
        : faults_{faults},
          path_{std::move(path)},
          content_{std::move(content)} {}

    [[nodiscard]] std::int64_t length() const override { return static_cast<std::int64_t>(content_->bytes().size()); }
    [[nodiscard]] FileFacts facts() const override { return {length(), content_->modified}; }
    std::size_t read(std::int64_t position, std::span<std::byte> into) override;

private:
    const DiskFaults& faults_;
    std::string path_;
    std::shared_ptr<const FileContent> content_;
};

/// A file of a simulated disk that is being written. Its bytes take room beside those of the old file.
class SimulatedReplacement : public FileReplacement {
public:
    SimulatedReplacement(SimulatedDisk& disk, std::string path, std::shared_ptr<FileContent> content)
        : disk_{disk},
          path_{std::move(path)},
          content_{std::move(content)} {}

    void write(std::span<const std::byte> bytes) override;
    void commit() override;
    std::optional<FileFacts> commit_over(const std::optional<FileFacts>& seen) override;

private:
    void check_usable() const;

    SimulatedDisk& disk_;
    std::string path_;
    std::shared_ptr<FileContent> content_; // gone after a failure and after the commit
};

} // namespace sonarelle
