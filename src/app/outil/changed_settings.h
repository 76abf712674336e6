#pragma once

#include <vector>

#include "app/common/arguments.h"
#include "platform/settings.h"

namespace sonarelle {

inline constexpr Option setting_option{"--reglage", true};

/// What `--reglage CLE=VALEUR` changes. @throws WrongWords for a key that there isn't, and for a value that makes no
/// sense for it.
[[nodiscard]] std::vector<Setting> changed_settings(const Arguments& arguments);

} // namespace sonarelle
