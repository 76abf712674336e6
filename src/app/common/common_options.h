#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/common/arguments.h"

namespace sonarelle {

inline constexpr Option drive_option{"--lecteur", true};
inline constexpr Option folder_option{"--dossier", true};

/// What every command knows, be it of use there or not.
struct CommonOptions {
    struct Drive {
        std::string name;
        std::string folder; ///< Of this machine, as typed.
    };

    std::optional<std::string> folder; ///< The program's; without it, the user's own.
    std::vector<Drive> drives;
};

/// @throws WrongWords for a drive that isn't given as LETTRE=DOSSIER, and for an empty folder.
[[nodiscard]] CommonOptions common_options(const Arguments& arguments);

} // namespace sonarelle
