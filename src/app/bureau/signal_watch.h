#pragma once

#include <QSocketNotifier>
#include <functional>

namespace sonarelle {

/// Tells of SIGINT, SIGTERM and SIGHUP in the windows' loop. A SIGHUP that the caller ignores (nohup) stays ignored.
/// One at a time in a process.
class SignalWatch {
public:
    explicit SignalWatch(std::function<void()> on_signal);
    ~SignalWatch();
    SignalWatch(const SignalWatch&) = delete;
    SignalWatch& operator=(const SignalWatch&) = delete;

private:
    QSocketNotifier notifier_;
};

} // namespace sonarelle
