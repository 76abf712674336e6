#include "app/bureau/signal_watch.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <system_error>
#include <utility>

namespace sonarelle {

namespace {

constexpr std::array end_signals{SIGINT, SIGTERM, SIGHUP};

// A signal's handler can reach nothing else.
int wake_descriptor = -1;

void wake(int) {
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto count = ::write(wake_descriptor, &one, sizeof one);
}

int open_descriptor() {
    wake_descriptor = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (wake_descriptor < 0)
        throw std::system_error{errno, std::generic_category()};
    return wake_descriptor;
}

} // namespace

SignalWatch::SignalWatch(std::function<void()> on_signal)
    : notifier_{open_descriptor(), QSocketNotifier::Read} {
    QObject::connect(&notifier_, &QSocketNotifier::activated, [on_signal = std::move(on_signal)] {
        std::uint64_t ignored = 0;
        [[maybe_unused]] const auto count = ::read(wake_descriptor, &ignored, sizeof ignored);
        on_signal();
    });
    for (const int signal : end_signals)
        if (std::signal(signal, wake) == SIG_IGN && signal == SIGHUP)
            std::signal(signal, SIG_IGN);
}

SignalWatch::~SignalWatch() {
    for (const int signal : end_signals)
        if (std::signal(signal, SIG_DFL) == SIG_IGN)
            std::signal(signal, SIG_IGN);
    notifier_.setEnabled(false);
    ::close(wake_descriptor);
}

} // namespace sonarelle
