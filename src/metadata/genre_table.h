#pragma once

#include <string_view>

#include "platform/numbers.h"

namespace sonarelle {

inline constexpr int genre_count = 148; ///< Codes 0 to 147 have a name.
inline constexpr int no_genre = 255;

/// The name of a genre code; empty for a code without one.
[[nodiscard]] std::string_view nom_du_genre(Integer code);

/// The code that a name, a "(code)" or a number written out stands for; `no_genre` when it stands for none.
/// Names have codes of their own here: at fourteen rows a name doesn't lead back to the code that shows it.
/// @throws Failure 6 when the number behind a "(" has more than 16 bits.
[[nodiscard]] int numero_du_genre(std::string_view nom);

} // namespace sonarelle
