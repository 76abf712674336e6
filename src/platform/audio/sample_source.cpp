#include "platform/audio/sample_source.h"

#include "platform/audio/container_source.h"
#include "platform/audio/mpeg_source.h"
#include "platform/audio/wav_source.h"
#include "platform/failure.h"

namespace sonarelle {

std::unique_ptr<SampleSource> open_sample_source(std::unique_ptr<RecordFile> file, const std::string& path) {
    if (file->length() == 0)
        throw Failure{FailureNumber::unplayable_file, path};
    if (auto wav = open_wav_source(file))
        return wav;
    if (auto mpeg = open_mpeg_source(file))
        return mpeg;
    return open_container_source(std::move(file), path);
}

} // namespace sonarelle
