#pragma once

#include "platform/audio/sample_source.h"

namespace sonarelle {

/// WAV or RF64 with plain samples (8 to 32 bit, 32 or 64 bit float, mono or stereo). Null when the file is none; `file`
/// is taken only when it is. The length is that of the data chunk, cut to what the file really holds.
[[nodiscard]] std::unique_ptr<SampleSource> open_wav_source(std::unique_ptr<RecordFile>& file);

} // namespace sonarelle
