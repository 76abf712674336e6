#include "app/outil/progress.h"

#include <unistd.h>

#include <algorithm>
#include <iostream>
#include <utility>

namespace sonarelle {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds first_after = 1000ms;
constexpr std::chrono::milliseconds again_after = 200ms;

} // namespace

Progress::Progress(std::string label, std::int64_t total)
    : label_{std::move(label)},
      total_{std::max<std::int64_t>(1, total)},
      on_terminal_{::isatty(STDERR_FILENO) == 1},
      next_{Clock::now() + first_after} {}

void Progress::reach(std::int64_t done) {
    if (!on_terminal_ || Clock::now() < next_)
        return;
    next_ = Clock::now() + again_after;
    shown_ = true;
    const double share = static_cast<double>(done) / static_cast<double>(total_);
    std::cerr << '\r' << label_ << " : " << static_cast<int>(100 * std::clamp(share, 0.0, 1.0)) << " %" << std::flush;
}

void Progress::clear() {
    if (shown_)
        std::cerr << "\r\033[K" << std::flush;
    shown_ = false;
}

} // namespace sonarelle
