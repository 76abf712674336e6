#include "platform/host/file_lock.h"

#include <sys/file.h>

#include <cerrno>
#include <chrono>
#include <thread>

#include "platform/failure.h"

namespace sonarelle {

namespace {

// A write takes some ms; a program that holds the lock for longer is stopped, and the station doesn't stop with it.
constexpr std::chrono::milliseconds patience{3000};

} // namespace

void wait_for_lock(const FileHandle& file, const std::string& source) {
    const auto give_up = std::chrono::steady_clock::now() + patience;
    while (::flock(file.get(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            return;
        if (std::chrono::steady_clock::now() > give_up)
            throw Failure{FailureNumber::path_access, source, "Un autre programme garde ce fichier pour lui"};
        std::this_thread::sleep_for(std::chrono::milliseconds{1});
    }
}

} // namespace sonarelle
