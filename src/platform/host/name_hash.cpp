#include "platform/host/name_hash.h"

namespace sonarelle {

std::uint64_t hash_of(std::string_view text) {
    std::uint64_t hash = 0xCBF29CE484222325U;
    for (const char c : text)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    return hash;
}

std::string in_hexadecimal(std::uint64_t number) {
    std::string digits;
    for (int shift = 60; shift >= 0; shift -= 4)
        digits += "0123456789abcdef"[(number >> shift) & 0xFU];
    return digits;
}

} // namespace sonarelle
