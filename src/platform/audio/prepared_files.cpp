#include "platform/audio/prepared_files.h"

#include <algorithm>

namespace sonarelle {

namespace {

constexpr std::size_t most_kept = 4;
constexpr std::chrono::seconds kept_for{10};

} // namespace

void PreparedFiles::keep(PreparedFile file, Instant now) {
    files_.push_front({std::move(file), now});
    if (files_.size() > most_kept)
        files_.pop_back();
}

std::optional<PreparedFile> PreparedFiles::take(const std::string& path) {
    const auto found = std::ranges::find_if(files_, [&](const Kept& kept) { return kept.file.path == path; });
    if (found == files_.end())
        return std::nullopt;
    PreparedFile file = std::move(found->file);
    files_.erase(found);
    return file;
}

void PreparedFiles::forget_old(Instant now) {
    files_.remove_if([limit = now - kept_for](const Kept& kept) { return kept.since < limit; });
}

} // namespace sonarelle
