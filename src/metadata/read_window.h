#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "platform/disk.h"

namespace sonarelle {

/// A file seen through a window of 16 KiB, so that a search byte by byte costs few reads. It is meant for a walk
/// forward with a short look ahead; positions are bytes from the file's start. A byte that the disk doesn't give counts
/// as the file's end; those before it are still given.
class ReadWindow {
public:
    explicit ReadWindow(RecordFile& file)
        : file_{file} {}

    /// `count` bytes (at most the window's size) from `position` on, fewer where the file ends.
    /// Valid until the next call.
    [[nodiscard]] std::span<const std::byte> at(std::int64_t position, std::size_t count);

    /// The position of the first such byte at `from` or behind it.
    [[nodiscard]] std::optional<std::int64_t> find(std::byte wanted, std::int64_t from);

private:
    /// The bytes from `position` on that the window holds now.
    [[nodiscard]] std::span<const std::byte> held(std::int64_t position) const;
    void move_to(std::int64_t position, std::size_t count);
    [[nodiscard]] std::size_t read_behind_held(std::size_t count);

    RecordFile& file_;
    std::int64_t start_ = 0;
    std::size_t filled_ = 0;
    bool byte_by_byte_ = false; ///< The disk has a fault ahead.
    std::array<std::byte, std::size_t{16} * 1024> bytes_;
};

} // namespace sonarelle
