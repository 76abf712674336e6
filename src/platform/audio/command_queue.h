#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <deque>

#include "platform/audio/voice.h"
#include "platform/units.h"

namespace sonarelle {

/// What the window thread wants of the bus, from an exact frame on.
struct BusCommand {
    enum class Kind { play, halt, gain, drop };

    Kind kind = Kind::halt;
    Frames at{};
    Voice* voice = nullptr;
    StreamTicket* ticket = nullptr; ///< play: a new stream, or null to go on with the old one.
    Frames position{};              ///< play: the frame of the file that is heard on `at`.
    float gain = 1.0F;
};

/// Commands on their way to the callback, in order. One thread pushes, one takes. What doesn't fit waits on the pushing
/// side, so a push never fails and the taking side never sees a lock.
class CommandQueue {
public:
    // The pushing side.
    void push(const BusCommand& command) {
        waiting_.push_back(command);
        flush();
    }
    void flush() {
        while (!waiting_.empty()) {
            const std::size_t end = end_.load(std::memory_order_relaxed);
            if (end - begin_.load(std::memory_order_acquire) == slots_.size())
                return;
            slots_[end % slots_.size()] = waiting_.front();
            end_.store(end + 1, std::memory_order_release);
            waiting_.pop_front();
        }
    }

    // The taking side.
    [[nodiscard]] const BusCommand* front() const noexcept {
        const std::size_t begin = begin_.load(std::memory_order_relaxed);
        return begin == end_.load(std::memory_order_acquire) ? nullptr : &slots_[begin % slots_.size()];
    }
    void pop() noexcept { begin_.store(begin_.load(std::memory_order_relaxed) + 1, std::memory_order_release); }

private:
    std::array<BusCommand, 1024> slots_{};
    alignas(64) std::atomic<std::size_t> begin_{0};
    alignas(64) std::atomic<std::size_t> end_{0};
    std::deque<BusCommand> waiting_;
};

} // namespace sonarelle
