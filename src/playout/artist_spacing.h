#pragma once

#include <string>

#include "playout/desk.h"

namespace sonarelle {

/// Keeps an artist from coming again too soon in random order, where the station wants that (`Ecart_artiste`).
class ArtistSpacing {
public:
    explicit ArtistSpacing(Desk& desk)
        : desk_{desk} {}

    /// Whether a file is of an artist who was started within as many starts as the settings say.
    [[nodiscard]] bool comes_too_soon(const std::string& path) const;

private:
    [[nodiscard]] std::string artist_of(const std::string& path) const;

    Desk& desk_;
};

} // namespace sonarelle
