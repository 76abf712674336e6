// The header reader finds in any file what the plain one finds, wherever the borders of its window fall.
// Input: a byte for strict reading, two bytes for the number of bytes in front, the file.

#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz_check.h"
#include "fuzz_disk.h"
#include "metadata/TypeTagMpeg.h"
#include "plain_mpeg_header.h"

namespace sonarelle {
namespace {

constexpr std::size_t prefix_size = 3;
constexpr std::size_t most_junk = std::size_t{17} * 1024; // Enough to lie across the first border.

PlainMpegHeader plain(const TypeTagMpeg& tag) {
    return {tag.Valide(), tag.Taille(),  tag.EntetePos(), tag.Duree(),    tag.Mpeg(),     tag.Layer(),
            tag.CRC(),    tag.BitRate(), tag.Frequence(), tag.Padded(),   tag.Frames(),   tag.PrivateBit(),
            tag.Mode(),   tag.ModeExt(), tag.Copyright(), tag.Original(), tag.Emphasis(), tag.Vbr()};
}

void read_header(const std::string& file, bool strict) {
    FuzzDisk on_disk{file};
    TypeTagMpeg tag{on_disk.disk};
    const TypeTagMpeg result = tag.LireEntete(fuzzed_file, strict);
    check(plain(result) == plain_mpeg_header(file, strict), "both readers find the same");
    check(plain(result) == plain(tag), "the record holds what the result holds");
    check(on_disk.disk.bytes(fuzzed_file) == file, "reading changes nothing");
}

} // namespace
} // namespace sonarelle

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace sonarelle;
    if (size < prefix_size)
        return 0;
    const std::size_t junk = (data[1] + std::size_t{256} * data[2]) % most_junk;
    const std::string input{reinterpret_cast<const char*>(data) + prefix_size, size - prefix_size};
    read_header(std::string(junk, 'x') + input, data[0] % 2 != 0);
    return 0;
}
