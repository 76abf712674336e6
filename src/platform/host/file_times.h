#pragma once

#include <chrono>
#include <cstdint>
#include <ctime>

namespace sonarelle {

/// File times go in steps of a few ms: what changed more recently than this may change again within the same step, and
/// nothing would tell.
inline constexpr std::chrono::milliseconds file_time_settles{50};

/// Since 1970.
[[nodiscard]] inline std::int64_t nanoseconds(const struct timespec& time) {
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

/// The machine's clock, as files are stamped by it.
[[nodiscard]] inline std::int64_t nanoseconds_now() {
    struct timespec time {};
    ::clock_gettime(CLOCK_REALTIME, &time);
    return nanoseconds(time);
}

} // namespace sonarelle
