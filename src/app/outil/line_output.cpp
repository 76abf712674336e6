#include "app/outil/line_output.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <climits>
#include <deque>
#include <string_view>
#include <thread>
#include <utility>

#include "platform/thread_annotations.h"

namespace sonarelle {

namespace {

using namespace std::chrono_literals;

constexpr std::size_t most_waiting = 1000;
constexpr std::chrono::milliseconds patience_at_the_end = 1s;
constexpr int look_again_ms = 100;

} // namespace

struct LineOutput::Shared {
    explicit Shared(int file_descriptor)
        : descriptor{file_descriptor} {}

    void work();
    [[nodiscard]] bool write_line(std::string_view line);
    [[nodiscard]] bool is_given_up();

    const int descriptor;

    Mutex mutex;
    Condition changed;
    std::deque<std::string> waiting SONARELLE_GUARDED_BY(mutex); // the first is being written
    int dropped SONARELLE_GUARDED_BY(mutex) = 0;
    bool nobody_reads SONARELLE_GUARDED_BY(mutex) = false;
    bool ends SONARELLE_GUARDED_BY(mutex) = false;
    bool given_up SONARELLE_GUARDED_BY(mutex) = false;
};

bool LineOutput::Shared::is_given_up() {
    const MutexLock lock{mutex};
    return given_up;
}

/// A pipe that can be written at all takes this much without blocking.
bool LineOutput::Shared::write_line(std::string_view line) {
    while (!line.empty()) {
        pollfd place{descriptor, POLLOUT, 0};
        const int ready = ::poll(&place, 1, look_again_ms);
        if (is_given_up())
            return false;
        if (ready <= 0)
            continue;
        const ssize_t count = ::write(descriptor, line.data(), std::min<std::size_t>(line.size(), PIPE_BUF));
        if (count >= 0)
            line.remove_prefix(static_cast<std::size_t>(count));
        else if (errno != EINTR && errno != EAGAIN)
            return false;
    }
    return true;
}

void LineOutput::Shared::work() {
    for (;;) {
        std::string line;
        {
            const MutexLock lock{mutex};
            while (waiting.empty() && !ends)
                changed.wait(mutex);
            if (waiting.empty())
                return;
            line = waiting.front();
        }
        const bool written = write_line(line);
        const MutexLock lock{mutex};
        changed.notify_all();
        if (written) {
            waiting.pop_front();
            continue;
        }
        dropped += static_cast<int>(waiting.size());
        waiting.clear();
        nobody_reads = true;
        return;
    }
}

LineOutput::LineOutput(int descriptor)
    : shared_{std::make_shared<Shared>(descriptor)} {
    std::thread{[shared = shared_] { shared->work(); }}.detach();
}

LineOutput::~LineOutput() {
    const auto end = std::chrono::steady_clock::now() + patience_at_the_end;
    const MutexLock lock{shared_->mutex};
    shared_->ends = true;
    shared_->changed.notify_all();
    while (!shared_->waiting.empty() && std::chrono::steady_clock::now() < end)
        shared_->changed.wait_until(shared_->mutex, end);
    shared_->given_up = true;
}

bool LineOutput::write(std::string line) {
    const MutexLock lock{shared_->mutex};
    if (shared_->nobody_reads || shared_->waiting.size() >= most_waiting) {
        ++shared_->dropped;
        return false;
    }
    shared_->waiting.push_back(std::move(line));
    shared_->changed.notify_all();
    return true;
}

int LineOutput::lost() const {
    const MutexLock lock{shared_->mutex};
    return shared_->dropped;
}

} // namespace sonarelle
