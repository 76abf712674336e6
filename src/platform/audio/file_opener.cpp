#include "platform/audio/file_opener.h"

#include <optional>
#include <utility>

#include "platform/audio/measuring_threads.h"
#include "platform/failure.h"

namespace sonarelle {

namespace {

constexpr std::size_t opening_frames = 2400; // 50 ms

PreparedFile prepare(SoundFiles& files, const std::string& path, const FileFacts& facts) {
    if (facts.is_folder)
        throw Failure{FailureNumber::unplayable_file, path};
    PreparedFile file{.path = path, .facts = facts, .seconds = 0, .decoder = {}, .opening = {}};
    file.decoder = std::make_unique<Decoder>(open_sample_source(files.open(path), path));
    if (file.decoder->has_sound()) {
        file.opening.resize(2 * opening_frames);
        file.opening.resize(2 * file.decoder->read(file.opening));
    }
    return file;
}

/// What was prepared before, or is known of the length, holds while the file is the same.
PreparedFile visit(SoundFiles& files, const std::string& path, std::optional<PreparedFile> prepared,
                   const std::optional<KnownLength>& known) {
    const FileFacts facts = files.facts(path);
    if (prepared && prepared->facts == facts)
        return std::move(*prepared);
    PreparedFile file = prepare(files, path, facts);
    file.seconds = known && known->facts == facts ? known->seconds : file.decoder->duration();
    return file;
}

} // namespace

// The decoder goes along, so that one that is stuck takes nothing of ours with it. Everything is asked for at once:
// each change of threads may cost a few milliseconds.
PreparedFile FileOpener::open(const std::string& path) {
    PreparedFile file = patience_.run(
        path, path, [files = files_, path, prepared = prepared_.take(path), known = lengths_.find(path)]() mutable {
            return visit(*files, path, std::move(prepared), known);
        });
    lengths_.keep(path, {file.facts, file.seconds});
    return file;
}

std::unique_ptr<LengthsAhead> FileOpener::measure_ahead(std::function<std::string(std::string_view)> resolve) const {
    return std::make_unique<MeasuringThreads>(files_, std::move(resolve), patience_);
}

} // namespace sonarelle
