#include "platform/audio/live_driver.h"

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <sys/eventfd.h>
#include <system_error>
#include <unistd.h>

#include "platform/audio/sound_media.h"

namespace sonarelle {

namespace {

using namespace std::chrono_literals;

constexpr Frames least_lead = milliseconds(50);
constexpr std::chrono::nanoseconds longest_sleep = 1s;   // for the housekeeping
constexpr std::chrono::nanoseconds shortest_sleep = 1ms; // a block that is later than expected is looked for again

} // namespace

LiveDriver::LiveDriver(Scheduler& scheduler, LiveClock& clock, ProgrammeBus& bus, SoundMedia& media)
    : scheduler_{scheduler},
      clock_{clock},
      bus_{bus},
      media_{media},
      wake_{::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)} {
    if (wake_ < 0)
        throw std::system_error{errno, std::generic_category()};
    sleep = [this](std::chrono::nanoseconds time) { sleep_on_descriptor(time); };
    clock_.run_until = [this](Frames frame) { wait_until(frame); };
    clock_.run_pending = [this] { run_pending(); };
}

LiveDriver::~LiveDriver() {
    clock_.run_until = nullptr;
    clock_.run_pending = nullptr;
    ::close(wake_);
}

Frames LiveDriver::lead() const {
    return std::max(least_lead, bus_.pull_reach());
}

std::chrono::nanoseconds LiveDriver::poll() {
    std::function<void()> event;
    while (take_posted(event))
        run_event(event);
    scheduler_.run_until(horizon());
    media_.housekeep();
    const auto due = scheduler_.next_due();
    return due ? std::min(time_until(*due), longest_sleep) : longest_sleep;
}

void LiveDriver::run_event(const std::function<void()>& event) {
    scheduler_.run_event(horizon(), event);
}

void LiveDriver::post(std::function<void()> event) {
    {
        const MutexLock lock{mutex_};
        posted_.push_back(std::move(event));
    }
    wake();
}

bool LiveDriver::take_posted(std::function<void()>& event) {
    const MutexLock lock{mutex_};
    if (posted_.empty()) {
        std::uint64_t ignored = 0;
        [[maybe_unused]] const auto count = ::read(wake_, &ignored, sizeof ignored);
        return false;
    }
    event = std::move(posted_.front());
    posted_.pop_front();
    return true;
}

void LiveDriver::run() {
    while (!is_stopped())
        if (const auto time = poll(); !is_stopped())
            sleep(time);
}

void LiveDriver::stop() noexcept {
    stopped_.store(true, std::memory_order_release);
    wake();
}

void LiveDriver::wake() const noexcept {
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto count = ::write(wake_, &one, sizeof one);
}

// The tick of a frame runs once the bus has rendered up to one lead before it.
std::chrono::nanoseconds LiveDriver::time_until(Frames frame) {
    const auto now = std::chrono::steady_clock::now();
    pace_.observe(bus_.rendered(), bus_.greatest_block(), bus_.pull_reach(), now);
    return std::max<std::chrono::nanoseconds>(pace_.when_rendered(frame - lead()) - now, shortest_sleep);
}

void LiveDriver::wait_until(Frames frame) {
    while (!is_stopped()) {
        const auto time = poll();
        if (scheduler_.now() >= frame)
            return;
        sleep(std::min(time, time_until(frame)));
    }
}

// A sleep of no length is what lets a toolkit's loop take what waits in its queue.
void LiveDriver::run_pending() {
    poll();
    sleep(0ns);
}

void LiveDriver::sleep_on_descriptor(std::chrono::nanoseconds time) const {
    pollfd descriptor{.fd = wake_, .events = POLLIN, .revents = 0};
    const timespec limit{.tv_sec = time.count() / 1'000'000'000, .tv_nsec = time.count() % 1'000'000'000};
    ::ppoll(&descriptor, 1, &limit, nullptr);
}

} // namespace sonarelle
