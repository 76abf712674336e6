#pragma once

#include "platform/audio/sample_source.h"

namespace sonarelle {

/// MPEG audio of all layers. Null when the file is none; `file` is taken only when it is.
/// The length is exact: from the length header if the file can hold what it says, or by walking over the heads of all
/// frames. The silence that the encoder says it has added at both ends is left out, so length and sound agree to the
/// sample.
[[nodiscard]] std::unique_ptr<SampleSource> open_mpeg_source(std::unique_ptr<RecordFile>& file);

} // namespace sonarelle
