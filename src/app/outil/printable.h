#pragma once

#include <string>
#include <string_view>

namespace sonarelle {

/// Text as a terminal may show it on one line: a control character becomes `·`, a byte that isn't UTF-8 `�`.
[[nodiscard]] std::string printable(std::string_view text);

/// The same of a word; `« »` where nothing would be seen of it.
[[nodiscard]] std::string printable_word(std::string_view word);

} // namespace sonarelle
