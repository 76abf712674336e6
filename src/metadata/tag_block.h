#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/disk.h"

namespace sonarelle {

/// The place of a tag: the last 128 bytes of a file.
namespace tag_block {

inline constexpr std::int64_t size = 128;

/// The bytes at the tag's place, a tag or not.
/// @throws Failure 63 when the file is shorter, 62 when they can't all be read.
[[nodiscard]] std::string read(RecordFile& file);

/// Whether these bytes begin with the mark "TAG", in capitals or not.
[[nodiscard]] bool is_tag(std::string_view block);

/// Replaces the file at `path` by the first `audio_bytes` bytes of `old_file` with `block` behind them. All or nothing:
/// until the new file is complete on the disk, the old one stands.
void replace(Disk& disk, std::string_view path, RecordFile& old_file, std::int64_t audio_bytes, std::string_view block);

} // namespace tag_block

} // namespace sonarelle
