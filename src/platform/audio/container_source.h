#pragma once

#include "platform/audio/sample_source.h"

namespace sonarelle {

/// Whatever FFmpeg can open: WMA, the sound of AVI and MPG, and the rest. A film without sound has 0 channels and the
/// film's length.
/// @throws Failure 1001 when it can't.
[[nodiscard]] std::unique_ptr<SampleSource> open_container_source(std::unique_ptr<RecordFile> file,
                                                                  const std::string& path);

} // namespace sonarelle
