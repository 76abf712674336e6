#include "app/outil/end_signals.h"

#include <unistd.h>

#include <array>
#include <atomic>
#include <csignal>
#include <utility>

namespace sonarelle {

namespace {

constexpr std::array end_signals{SIGINT, SIGTERM, SIGHUP};
constexpr unsigned longest_end_s = 10;

// A signal's handler can reach nothing else.
std::function<void()> ask_to_end;
std::atomic<bool> asks{false};

void take_signal(int) {
    if (!asks)
        return;
    ::alarm(longest_end_s); // ends a program that a disk holds
    ask_to_end();
}

} // namespace

EndSignals::EndSignals(std::function<void()> ask) {
    ask_to_end = std::move(ask);
    asks = true;
    for (const int signal : end_signals)
        if (std::signal(signal, take_signal) == SIG_IGN && signal == SIGHUP)
            std::signal(signal, SIG_IGN);
}

EndSignals::~EndSignals() {
    for (const int signal : end_signals)
        if (std::signal(signal, SIG_DFL) == SIG_IGN)
            std::signal(signal, SIG_IGN);
    asks = false;
}

} // namespace sonarelle
