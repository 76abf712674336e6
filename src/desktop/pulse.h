#pragma once

#include <QEventLoop>
#include <QObject>
#include <QSocketNotifier>
#include <QTimer>
#include <chrono>
#include <functional>

namespace sonarelle {

/// Beats the station's time in the windows' loop, the nested loops of open boxes included: `beat` runs what is due and
/// says how long nothing will be. Between two beats the thread sleeps or serves the windows. Window thread.
class Pulse : public QObject {
public:
    using Nanoseconds = std::chrono::nanoseconds;

    /// `wake_descriptor` is readable when something was posted to the station; the caller's, it outlives the pulse.
    Pulse(int wake_descriptor, std::function<Nanoseconds()> beat);

    /// Beats now, and aims at the next time that something is due.
    void beat();

    /// Serves the windows for at most this long, less if something was posted. No time at all: what waits is taken.
    void serve(Nanoseconds time);

private:
    void aim(Nanoseconds time);

    std::function<Nanoseconds()> beat_;
    QSocketNotifier posted_;
    QTimer timer_;
    QEventLoop* serving_ = nullptr; // the innermost loop of `serve`
};

} // namespace sonarelle
