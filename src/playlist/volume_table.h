#pragma once

#include <optional>

namespace sonarelle {

/// The volumes of list records, in percent, and the attenuations in hundredths of a decibel that the decks take for
/// them. Two directions, both with their own gaps: 5 percent and -3600 belong to no row.
[[nodiscard]] std::optional<int> attenuation_of_percent(int percent);
[[nodiscard]] std::optional<int> percent_of_attenuation(int attenuation);

} // namespace sonarelle
