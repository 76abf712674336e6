#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "playlist/enreg_liste.h"

namespace sonarelle {

using Json = nlohmann::ordered_json; ///< Its fields in our order.
using ReadJson = nlohmann::json;     ///< From elsewhere, with any number of fields.

/// The fields of a record as the file has them, texts without the spaces on their right.
[[nodiscard]] Json json_of(const enreg_liste& record, std::int64_t number);
[[nodiscard]] Json json_of(const enreg_rfm& record, std::int64_t number);

/// The records of a list in that form: the whole object, or the array of its records alone. Texts that are too long are
/// cut at their field's width.
/// @throws Failure naming the record and what is wrong with it.
[[nodiscard]] std::vector<enreg_liste> records_of(const ReadJson& list);

} // namespace sonarelle
