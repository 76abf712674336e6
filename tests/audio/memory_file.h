#pragma once

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

#include "platform/disk.h"

namespace sonarelle {

/// A file whose bytes are in memory.
class MemoryFile final : public RecordFile {
public:
    explicit MemoryFile(std::string bytes)
        : bytes_{std::move(bytes)} {}

    [[nodiscard]] std::int64_t length() const override { return static_cast<std::int64_t>(bytes_.size()); }
    std::size_t read(std::int64_t position, std::span<std::byte> into) override {
        const auto from = std::min(bytes_.size(), static_cast<std::size_t>(position));
        const std::size_t count = std::min(into.size(), bytes_.size() - from);
        std::memcpy(into.data(), bytes_.data() + from, count);
        return count;
    }

private:
    std::string bytes_;
};

/// A number as a file has it, its lowest byte first.
[[nodiscard]] inline std::string little_endian(std::uint64_t value, std::size_t bytes) {
    std::string text;
    for (std::size_t byte = 0; byte < bytes; ++byte, value >>= 8)
        text += static_cast<char>(value);
    return text;
}

/// The same, its highest byte first.
[[nodiscard]] inline std::string big_endian(std::uint64_t value, std::size_t bytes) {
    const std::string text = little_endian(value, bytes);
    return {text.rbegin(), text.rend()};
}

} // namespace sonarelle
