#pragma once

#include "platform/disk.h"

namespace sonarelle {

enum class Completeness {
    unknown, ///< The file isn't made of chunks that tell their sizes.
    whole,
    cut, ///< It ends before its last chunk does.
};

/// Whether a file of chunks (AVI and WAV, AIFF, WMA, MP4) has lost its end, by the sizes at the heads of the outermost
/// ones: a few short reads.
/// @throws Failure 57 when the disk fails.
[[nodiscard]] Completeness completeness_of_chunks(RecordFile& file);

} // namespace sonarelle
