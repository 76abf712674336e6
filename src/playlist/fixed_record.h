#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "platform/text.h"

namespace sonarelle {

static_assert(std::endian::native == std::endian::little, "list records are little-endian and read by copying");

/// A record of fixed size as it lies in a file: packed, texts in Windows-1252 filled with spaces on the right, numbers
/// little-endian. Texts come out with their filling; a longer one is cut at its width going in.
template <std::size_t Size>
class FixedRecord {
public:
    static constexpr std::size_t size = Size;

    FixedRecord() { bytes_.fill(std::byte{' '}); }

    [[nodiscard]] const std::array<std::byte, Size>& bytes() const { return bytes_; }
    [[nodiscard]] std::array<std::byte, Size>& bytes() { return bytes_; }
    friend bool operator==(const FixedRecord&, const FixedRecord&) = default;

protected:
    [[nodiscard]] std::string text(std::size_t offset, std::size_t width) const {
        return from_windows_1252({reinterpret_cast<const char*>(bytes_.data()) + offset, width});
    }

    /// The text without the spaces at its ends, without a copy of its filling.
    [[nodiscard]] std::string trimmed_text(std::size_t offset, std::size_t width) const {
        return from_windows_1252(trim({reinterpret_cast<const char*>(bytes_.data()) + offset, width}));
    }

    /// @throws Failure 5 for a character without a byte; the field is then as it was.
    void set_text(std::size_t offset, std::size_t width, std::string_view value) {
        const std::string field = to_windows_1252(value);
        const std::size_t count = std::min(field.size(), width);
        std::memcpy(bytes_.data() + offset, field.data(), count);
        std::fill_n(bytes_.begin() + static_cast<std::ptrdiff_t>(offset + count), width - count, std::byte{' '});
    }

    template <typename Number>
    [[nodiscard]] Number number(std::size_t offset) const {
        Number value;
        std::memcpy(&value, bytes_.data() + offset, sizeof value);
        return value;
    }

    template <typename Number>
    void set_number(std::size_t offset, Number value) {
        std::memcpy(bytes_.data() + offset, &value, sizeof value);
    }

private:
    std::array<std::byte, Size> bytes_;
};

} // namespace sonarelle
