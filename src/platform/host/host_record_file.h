#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/disk.h"
#include "platform/host/file_handle.h"

namespace sonarelle {

/// A file of this machine, read through a buffer: a list read record by record costs a copy a record.
class HostRecordFile : public RecordFile {
public:
    HostRecordFile(FileHandle file, const FileFacts& facts, std::string source);

    [[nodiscard]] std::int64_t length() const override { return facts_.size; }
    [[nodiscard]] FileFacts facts() const override { return facts_; }
    std::size_t read(std::int64_t position, std::span<std::byte> into) override;

private:
    [[nodiscard]] std::size_t bytes_left(std::int64_t position, std::size_t at_most) const;
    [[nodiscard]] std::size_t copy_from_buffer(std::int64_t position, std::span<std::byte> into) const;
    std::size_t read_disk(std::int64_t position, std::span<std::byte> into);
    void fill_buffer(std::int64_t position, std::size_t wanted);

    FileHandle file_;
    FileFacts facts_;
    std::string source_;
    std::vector<std::byte> buffer_;
    std::int64_t buffer_begin_ = 0; // position in the file of the buffer's first byte
};

} // namespace sonarelle
