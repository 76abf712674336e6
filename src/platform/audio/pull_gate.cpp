#include "platform/audio/pull_gate.h"

#include <algorithm>
#include <thread>

namespace sonarelle {

void PullGate::pull_by_device(float* out, std::size_t frames) noexcept {
    const auto now = std::chrono::steady_clock::now();
    bool rendered = false;
    if (!busy_.exchange(true, std::memory_order_acquire)) {
        rendered = render_if(Turn::device, out, frames, now);
        if (rendered)
            gaps_.asked(Frames{asked()}, now);
        busy_.store(false, std::memory_order_release);
    }
    if (!rendered) {
        std::fill_n(out, 2 * frames, 0.0F);
        gaps_.restart();
    }
    last_asked_.store(now, std::memory_order_relaxed);
    asked_.fetch_add(static_cast<std::int64_t>(frames), std::memory_order_release);
}

void PullGate::pull_by_pacer(float* out, std::size_t frames) noexcept {
    enter();
    render_if(Turn::pacer, out, frames, std::chrono::steady_clock::now());
    busy_.store(false, std::memory_order_release);
}

void PullGate::close() noexcept {
    give_turn(Turn::nobody);
    enter(); // and never leave
}

void PullGate::enter() noexcept {
    while (busy_.exchange(true, std::memory_order_acquire))
        std::this_thread::yield();
}

bool PullGate::render_if(Turn mine, float* out, std::size_t frames,
                         std::chrono::steady_clock::time_point now) noexcept {
    if (turn() != mine)
        return false;
    bus_->bursts().pulled(Frames{static_cast<std::int64_t>(frames)}, now);
    bus_->render(out, frames);
    return true;
}

} // namespace sonarelle
