#pragma once

#include <sys/types.h>

#include <cstddef>
#include <functional>

#include "platform/failure.h"

namespace sonarelle::test {

/// The number of the failure that a piece of work ends in; `none` when it goes through.
[[nodiscard]] FailureNumber failure_of(const std::function<void()>& work);

/// Starts the work in a process of its own.
[[nodiscard]] pid_t start_child(const std::function<void()>& work);

/// Waits for it: 0, or the number of the failure that ended the work (up to 100), or -1 for another end.
[[nodiscard]] int end_of_child(pid_t child);

/// Kills it, and tells whether it was still at work.
[[nodiscard]] bool kill_child(pid_t child);

/// The failure of the work when a user does it who owns nothing.
[[nodiscard]] FailureNumber failure_without_rights(const std::function<void()>& work);

/// The failure of the work on a disk where no file grows beyond `bytes`.
[[nodiscard]] FailureNumber failure_on_full_disk(std::size_t bytes, const std::function<void()>& work);

} // namespace sonarelle::test
