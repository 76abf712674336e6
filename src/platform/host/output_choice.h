#pragma once

#include <string>

namespace sonarelle {

/// The sound output that the operator has chosen lies in one small JSON file of this machine:
/// {"sortie": "Carte du studio"}. An empty name is the default output, of this machine as it is.

/// The chosen name; empty without the file, and with one that is damaged or can't be read: a station that starts by
/// itself must be heard.
[[nodiscard]] std::string load_output_choice(const std::string& file);

/// Keeps a name. A damaged file is set aside as `sortie.json.abime`. @throws Failure 5 for a name that is no UTF-8, 75
/// without rights, 61 on a full disk; the old choice stands then.
void save_output_choice(const std::string& file, const std::string& name);

} // namespace sonarelle
