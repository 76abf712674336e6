#include "platform/audio/output_keeper.h"

#include <algorithm>

#include "platform/failure.h"

namespace sonarelle {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds retry_every = 2000ms;
constexpr std::chrono::milliseconds watch_every = 100ms;
constexpr std::chrono::milliseconds given_up_after = 4000ms; // a device that hangs is opened anew
constexpr std::chrono::milliseconds first_pull_takes = 1000ms;
constexpr std::chrono::milliseconds first_pull_watch = 10ms;

} // namespace

void OutputKeeper::Way::pull(float* out, std::size_t frames) noexcept {
    if (shared->on_air.load(std::memory_order_acquire) == number)
        return shared->gate.pull_by_device(out, frames);
    std::fill_n(out, 2 * frames, 0.0F);
    asked_in_vain.fetch_add(static_cast<std::int64_t>(frames), std::memory_order_relaxed);
}

void OutputKeeper::run() {
    do {
        look_for_better_device();
        shared_->first_try_over = true;
        shared_->wake.notify_all();
        tell_names();
        rest();
    } while (shared_->sleep_for(0ms));
    close_device();
    devices_.reset();
    shared_->keeper_ended = true;
}

// The chosen device; else the default one; else what plays goes on.
void OutputKeeper::look_for_better_device() {
    const std::string wanted = take_choice();
    if (plays_on(wanted) || go_over_to(wanted))
        return;
    if (!plays_on(""))
        go_over_to("");
}

std::string OutputKeeper::take_choice() {
    const MutexLock lock{shared_->mutex};
    shared_->choice_is_new = false;
    return shared_->chosen;
}

bool OutputKeeper::go_over_to(const std::string& name) {
    const auto way = std::make_shared<Way>();
    way->shared = shared_;
    way->number = ++last_number_;
    try {
        if (device_ == nullptr)
            shared_->on_air = way->number; // its first block is the programme's
        auto device = devices_->open(name, [way](float* out, std::size_t frames) { way->pull(out, frames); });
        if (device_ != nullptr && !begins_to_pull(*way))
            return false;
        put_on_air(way->number, name, std::move(device));
        return true;
    } catch (const Failure&) {
        if (device_ == nullptr)
            shared_->on_air = 0;
        return false;
    }
}

bool OutputKeeper::begins_to_pull(const Way& way) {
    const auto limit = Clock::now() + first_pull_takes;
    while (way.asked_in_vain.load(std::memory_order_relaxed) == 0)
        if (Clock::now() > limit || !shared_->sleep_for(first_pull_watch))
            return false;
    return true;
}

void OutputKeeper::put_on_air(int number, std::string name, std::unique_ptr<OutputDevice> device) {
    shared_->on_air = number;
    device_ = std::move(device);
    name_ = std::move(name);
    asked_ = shared_->gate.asked();
    last_pull_ = Clock::now();
    shared_->device_open = true;
    const MutexLock lock{shared_->mutex};
    shared_->playing_on = name_;
}

// Until it is worth looking for another device: at a choice, after a while where the chosen one doesn't play, or when
// the one that plays has gone. A chosen one that has gone is replaced at once, the default one after a while.
void OutputKeeper::rest() {
    const auto until = Clock::now() + retry_every;
    while (shared_->sleep_until_choice(watch_every)) {
        if (device_ != nullptr && device_is_gone()) {
            const bool was_default = name_.empty();
            close_device();
            if (!was_default)
                go_over_to("");
            shared_->sleep_until_choice(retry_every);
            return;
        }
        const MutexLock lock{shared_->mutex};
        if (shared_->choice_is_new || Clock::now() >= until)
            return;
    }
}

bool OutputKeeper::device_is_gone() {
    if (const std::int64_t asked = shared_->gate.asked(); asked != asked_) {
        asked_ = asked;
        last_pull_ = Clock::now();
    }
    return !device_->is_there() || Clock::now() - last_pull_ >= given_up_after;
}

void OutputKeeper::close_device() {
    shared_->device_open = false;
    shared_->on_air = 0;
    {
        const MutexLock lock{shared_->mutex};
        shared_->playing_on.reset();
    }
    device_.reset();
}

void OutputKeeper::tell_names() {
    auto names = devices_->names();
    const MutexLock lock{shared_->mutex};
    shared_->names = std::move(names);
}

} // namespace sonarelle
