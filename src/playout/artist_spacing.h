#pragma once

#include <map>
#include <string>

#include "playout/desk.h"

namespace sonarelle {

/// Keeps an artist from coming again too soon in random order, where the station wants that (`Ecart_artiste`).
class ArtistSpacing {
public:
    explicit ArtistSpacing(Desk& desk)
        : desk_{desk} {}

    /// Whether a file is of an artist who was started within as many starts as the settings say.
    [[nodiscard]] bool comes_too_soon(const std::string& path);

private:
    [[nodiscard]] const std::string& artist_of(const std::string& path);
    [[nodiscard]] std::string read_artist(const std::string& path) const;

    Desk& desk_;
    std::map<std::string, std::string> artists_; // by path: a draw mustn't open a hundred files
};

} // namespace sonarelle
