#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "platform/failure.h"

namespace sonarelle {

/// How long a station on the air waits for a disk.
inline constexpr std::chrono::milliseconds station_patience{2000};

/// Lets other threads run until it is so, for as long as most disks take to answer and no longer: to fall asleep and be
/// woken would cost several times the answer.
template <typename Condition>
void stay_awake_until(Condition so) {
    const auto limit = std::chrono::steady_clock::now() + std::chrono::microseconds{100};
    while (!so() && std::chrono::steady_clock::now() < limit)
        std::this_thread::yield();
}

/// A thread that asks the disk, one question after the other; starting one for each would cost more than the answer.
/// When it is dropped the thread ends, after the question that it may hang in.
class DiskHelper {
public:
    DiskHelper();
    ~DiskHelper();
    DiskHelper(const DiskHelper&) = delete;
    DiskHelper& operator=(const DiskHelper&) = delete;

    /// The work before has returned.
    void give(std::function<void()> work);

private:
    struct Queue;
    std::shared_ptr<Queue> queue_; // the thread's too
};

/// Waits for disks that may be dead, such as a network share whose server is gone, for a limited time. What hasn't
/// answered is left behind on a thread of its own and remembered: until it returns, whatever else lies on the same
/// mount fails at once, so that a dead disk costs one wait and one thread. From the window thread.
class DiskPatience {
public:
    using Limit = std::optional<std::chrono::milliseconds>;

    /// Without a limit the window thread waits itself, for ever. The mount table is the system's, or another file of
    /// its form.
    explicit DiskPatience(Limit limit = {}, std::string mount_table = "/proc/self/mountinfo")
        : limit_{limit},
          mount_table_{std::move(mount_table)} {}

    /// Runs `work`, which asks for an absolute path of this machine, and gives its result. The work must own all that
    /// it uses: it may outlive everything else.
    /// @throws what the work throws, and Failure 57 about `source` when the disk doesn't answer.
    template <typename Work>
    auto run(const std::string& machine_path, const std::string& source, Work work) {
        if (!limit_)
            return work();
        if (is_silent(machine_path))
            throw Failure{FailureNumber::device_fault, source};
        auto returned = std::make_shared<std::atomic<bool>>(false);
        auto task = std::make_shared<std::packaged_task<decltype(work())()>>(std::move(work));
        auto result = task->get_future();
        if (!helper_)
            helper_ = std::make_shared<DiskHelper>();
        helper_->give([task = std::move(task), returned]() mutable {
            (*task)();
            task.reset();
            *returned = true;
        });
        stay_awake_until([&] { return returned->load(std::memory_order_acquire); });
        if (result.wait_for(*limit_) != std::future_status::ready) {
            helper_.reset();
            remember(machine_path, std::move(returned));
            throw Failure{FailureNumber::device_fault, source};
        }
        return result.get();
    }

    // For work that has threads of its own and waits in its own way.

    [[nodiscard]] const Limit& limit() const { return limit_; }
    /// Whether a disk that was asked for this absolute path would leave the question unanswered.
    [[nodiscard]] bool is_silent(const std::string& machine_path);
    /// The disk of this path doesn't answer, until the thread that is left behind in it says that it does.
    void remember(const std::string& machine_path, std::shared_ptr<std::atomic<bool>> returned);

private:
    struct Silent {
        std::string folder;
        std::shared_ptr<std::atomic<bool>> returned;
    };

    Limit limit_;
    std::string mount_table_;
    std::shared_ptr<DiskHelper> helper_; ///< Idle between two calls.
    std::vector<Silent> silent_;
};

} // namespace sonarelle
