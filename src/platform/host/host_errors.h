#pragma once

#include <string>

#include "platform/failure.h"

namespace sonarelle {

/// What was tried when the machine refused; a missing right is another failure for a reader than for a writer.
enum class Access { reading, writing };

/// The station's failure number of an errno.
[[nodiscard]] FailureNumber failure_of_errno(int error, Access access);

/// The Failure of an errno, in the words of what it means.
[[nodiscard]] Failure failure_from(int error, Access access, const std::string& source);

/// Throws the Failure of the present errno.
[[noreturn]] void throw_errno(Access access, const std::string& source);

} // namespace sonarelle
