#include "platform/audio/file_opener.h"

#include <utility>

#include "platform/failure.h"

namespace sonarelle {

namespace {

constexpr std::size_t opening_frames = 2400; // 50 ms

PreparedFile prepare(SoundFiles& files, const std::string& path, const FileFacts& facts) {
    if (facts.is_folder)
        throw Failure{failure_number::unplayable_file, path};
    PreparedFile file{.path = path, .facts = facts, .decoder = {}, .opening = {}};
    file.decoder = std::make_unique<Decoder>(open_sample_source(files.open(path), path));
    if (file.decoder->has_sound()) {
        file.opening.resize(2 * opening_frames);
        file.opening.resize(2 * file.decoder->read(file.opening));
    }
    return file;
}

} // namespace

PreparedFile FileOpener::open(const std::string& path) {
    const auto facts = with_patience(patience_, path, [files = files_, path] { return files->facts(path); });
    if (auto prepared = prepared_.take(path, facts))
        return std::move(*prepared);
    return with_patience(patience_, path, [files = files_, path, facts] { return prepare(*files, path, facts); });
}

double FileOpener::measure(PreparedFile& file) {
    if (const auto known = lengths_.find(file.path, file.facts))
        return *known;
    // The decoder goes along, so that one that is stuck takes nothing of ours with it.
    auto [decoder, seconds] = with_patience(patience_, file.path, [decoder = std::move(file.decoder)]() mutable {
        const double measured = decoder->duration();
        return std::pair{std::move(decoder), measured};
    });
    file.decoder = std::move(decoder);
    lengths_.keep(file.path, file.facts, seconds);
    return seconds;
}

} // namespace sonarelle
