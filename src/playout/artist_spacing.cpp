#include "playout/artist_spacing.h"

#include <algorithm>

#include "metadata/TypeTagV1.h"
#include "platform/failure.h"
#include "platform/text.h"
#include "playout/file_title.h"

namespace sonarelle {

namespace {

constexpr std::size_t most_artists_kept = 1000;

} // namespace

bool ArtistSpacing::comes_too_soon(const std::string& path) {
    const auto& started = desk_.chain.started_paths;
    const auto wanted = static_cast<std::size_t>(std::max(0, desk_.settings.ecart_artiste.value()));
    const std::size_t spacing = std::min(wanted, started.size());
    if (spacing == 0)
        return false;
    const std::string artist = artist_of(path); // a copy: what follows may begin the map anew
    return !artist.empty() &&
           std::any_of(started.end() - static_cast<std::ptrdiff_t>(spacing), started.end(),
                       [&](const std::string& before) { return equal_ignoring_case(artist_of(before), artist); });
}

const std::string& ArtistSpacing::artist_of(const std::string& path) {
    if (artists_.size() > most_artists_kept)
        artists_.clear();
    const auto found = artists_.find(path);
    return found != artists_.end() ? found->second : artists_.emplace(path, read_artist(path)).first->second;
}

// The tag's, else what stands before the first " - " of the name, as most collections name their files.
std::string ArtistSpacing::read_artist(const std::string& path) const {
    std::string artist;
    ErrorIndicator{}.skip([&] {
        TypeTagV1 raw{desk_.platform.disk};
        static_cast<void>(raw.LireTag(path));
        artist = trim(raw.Artiste());
    });
    if (!artist.empty())
        return artist;
    const std::string name = title_of(path).name;
    const std::size_t end = name.find(" - ");
    return end == std::string::npos ? std::string{} : std::string{trim(name.substr(0, end))};
}

} // namespace sonarelle
