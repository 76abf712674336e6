#pragma once

#include <chrono>
#include <future>
#include <optional>
#include <thread>

#include "platform/failure.h"

namespace sonarelle {

/// How long the window thread waits for a disk; nothing: for ever.
using Patience = std::optional<std::chrono::milliseconds>;

/// Runs `work` and gives its result. With limited patience it runs on a thread of its own, which is left behind when it
/// takes too long: `work` must own all that it uses.
/// @throws what `work` throws, and Failure 57 about `subject` when the patience has run out.
template <typename Work>
auto with_patience(const Patience& patience, const std::string& subject, Work work) {
    if (!patience)
        return work();
    std::packaged_task<decltype(work())()> task{std::move(work)};
    auto result = task.get_future();
    std::thread{std::move(task)}.detach();
    if (result.wait_for(*patience) != std::future_status::ready)
        throw Failure{failure_number::device_fault, subject};
    return result.get();
}

} // namespace sonarelle
