#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/disk.h"

namespace sonarelle {

/// A window of bytes that moves over a file, so that looking at many near places costs few reads.
class ByteWindow {
public:
    static constexpr std::size_t capacity = 128 * 1024;
    /// Behind what is asked for there is this much readable memory: decoders look ahead.
    static constexpr std::size_t slack = 64;

    explicit ByteWindow(RecordFile& file)
        : file_{file},
          bytes_(capacity + slack) {}

    [[nodiscard]] std::int64_t length() const { return file_.length(); }

    /// `count` bytes (at most a quarter of the capacity) from `position`, valid until the next call; null when the file
    /// ends before.
    [[nodiscard]] const std::uint8_t* at(std::int64_t position, std::size_t count) {
        if (position < begin_ || position + static_cast<std::int64_t>(count) > end_)
            if (!move_to(position, count))
                return nullptr;
        return reinterpret_cast<const std::uint8_t*>(bytes_.data() + (position - begin_));
    }

    /// How many bytes from `position` on are in the window now.
    [[nodiscard]] std::size_t left(std::int64_t position) const {
        return position < begin_ || position >= end_ ? 0 : static_cast<std::size_t>(end_ - position);
    }

private:
    bool move_to(std::int64_t position, std::size_t count) {
        if (position < 0 || position + static_cast<std::int64_t>(count) > file_.length())
            return false;
        begin_ = end_ = position;
        const std::size_t wanted = position == 0 ? capacity / 4 : capacity; // a first look needs little
        end_ += static_cast<std::int64_t>(file_.read(position, std::span{bytes_.data(), wanted}));
        return position + static_cast<std::int64_t>(count) <= end_;
    }

    RecordFile& file_;
    std::vector<std::byte> bytes_;
    std::int64_t begin_ = 0;
    std::int64_t end_ = 0;
};

} // namespace sonarelle
