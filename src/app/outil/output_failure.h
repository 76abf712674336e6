#pragma once

#include <string>

#include "platform/failure.h"

namespace sonarelle {

/// What the standard output failed with just now.
[[nodiscard]] Failure output_failure();

/// What an error of the machine means, in French.
[[nodiscard]] std::string sentence_of_errno(int error);

} // namespace sonarelle
