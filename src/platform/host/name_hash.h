#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace sonarelle {

/// FNV-1a, 64 bits: tells texts apart, and keeps no secret.
[[nodiscard]] std::uint64_t hash_of(std::string_view text);
/// 16 digits, the highest first.
[[nodiscard]] std::string in_hexadecimal(std::uint64_t number);

} // namespace sonarelle
