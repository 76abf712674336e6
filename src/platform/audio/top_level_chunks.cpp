#include "platform/audio/top_level_chunks.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace sonarelle {

namespace {

constexpr std::size_t longest_head = 24;
using Head = std::array<std::uint8_t, longest_head>;

constexpr int most_chunks = 1000;

std::int64_t little_endian(const std::uint8_t* bytes, std::size_t size) {
    std::uint64_t value = 0;
    for (std::size_t byte = size; byte > 0; --byte)
        value = value << 8 | bytes[byte - 1];
    return static_cast<std::int64_t>(value);
}

std::int64_t big_endian(const std::uint8_t* bytes, std::size_t size) {
    std::uint64_t value = 0;
    for (std::size_t byte = 0; byte < size; ++byte)
        value = value << 8 | bytes[byte];
    return static_cast<std::int64_t>(value);
}

bool says(const std::uint8_t* bytes, const char* word) {
    return std::memcmp(bytes, word, 4) == 0;
}

// The size of a chunk with its head; 0 for what is no chunk, as a tag behind the last one, or tells no size. What
// writers that can't go back leave there is the greatest number, or nothing.
std::int64_t riff_chunk(const Head& head) {
    const std::int64_t size = little_endian(&head[4], 4);
    return !says(head.data(), "RIFF") || size == 0 || size == UINT32_MAX ? 0 : 8 + size;
}

std::int64_t aiff_chunk(const Head& head) {
    return says(head.data(), "FORM") ? 8 + big_endian(&head[4], 4) : 0;
}

std::int64_t asf_object(const Head& head) {
    return little_endian(&head[16], 8);
}

std::int64_t mp4_box(const Head& head) {
    const std::int64_t size = big_endian(head.data(), 4);
    return size == 1 ? big_endian(&head[8], 8) : size;
}

using SizeOf = std::int64_t (*)(const Head&);

SizeOf family_of(const Head& head) {
    constexpr std::array<std::uint8_t, 4> asf_header{0x30, 0x26, 0xB2, 0x75};
    if (says(head.data(), "RIFF"))
        return &riff_chunk;
    if (says(head.data(), "FORM"))
        return &aiff_chunk;
    if (std::memcmp(head.data(), asf_header.data(), asf_header.size()) == 0)
        return &asf_object;
    if (says(&head[4], "ftyp"))
        return &mp4_box;
    return nullptr;
}

} // namespace

Completeness completeness_of_chunks(RecordFile& file) {
    SizeOf size_of = nullptr;
    std::int64_t at = 0;
    for (int chunk = 0; chunk < most_chunks && at < file.length(); ++chunk) {
        Head head{};
        (void)file.read(at, std::as_writable_bytes(std::span{head}));
        if (size_of == nullptr)
            size_of = family_of(head);
        const std::int64_t size = size_of == nullptr ? 0 : size_of(head);
        if (size <= 0)
            return at > 0 ? Completeness::whole : Completeness::unknown;
        if (size > file.length() - at)
            return Completeness::cut;
        at += size;
    }
    return at >= file.length() ? Completeness::whole : Completeness::unknown;
}

} // namespace sonarelle
