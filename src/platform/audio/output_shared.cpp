#include "platform/audio/output_shared.h"

#include <utility>

namespace sonarelle {

bool OutputShared::sleep_for(std::chrono::milliseconds time) {
    const auto until = std::chrono::steady_clock::now() + time;
    const MutexLock lock{mutex};
    while (!stopping && std::chrono::steady_clock::now() < until)
        wake.wait_until(mutex, until);
    return !stopping;
}

bool OutputShared::sleep_until_choice(std::chrono::milliseconds time) {
    const auto until = std::chrono::steady_clock::now() + time;
    const MutexLock lock{mutex};
    while (!stopping && !choice_is_new && std::chrono::steady_clock::now() < until)
        wake.wait_until(mutex, until);
    return !stopping;
}

bool OutputShared::tell_gaps() {
    const OutputGaps gaps = gate.gaps().gaps();
    if (std::exchange(gaps_told, gaps.count) == gaps.count)
        return false;
    if (on_gaps)
        on_gaps(gaps);
    return true;
}

void OutputShared::set_state(OutputState next) {
    if (state.exchange(next) != next && on_change)
        on_change(next);
}

} // namespace sonarelle
