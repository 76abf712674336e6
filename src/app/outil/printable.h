#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "platform/text.h"

namespace sonarelle {

/// A word as a terminal may show it; `« »` where nothing would be seen of it.
[[nodiscard]] std::string printable_word(std::string_view word);

/// JSON on one line, which a terminal may show too: control characters beyond ASCII, which some obey, are escaped.
/// A byte that isn't UTF-8 becomes `\ufffd`.
[[nodiscard]] std::string json_line(const nlohmann::ordered_json& value);

} // namespace sonarelle
