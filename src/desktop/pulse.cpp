#include "desktop/pulse.h"

#include <utility>

namespace sonarelle {

Pulse::Pulse(int wake_descriptor, std::function<Nanoseconds()> beat)
    : beat_{std::move(beat)},
      posted_{wake_descriptor, QSocketNotifier::Read} {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, [this] { this->beat(); });
    connect(&posted_, &QSocketNotifier::activated, this, [this] {
        if (serving_ != nullptr)
            serving_->quit();
        else
            this->beat();
    });
}

void Pulse::beat() {
    timer_.stop();
    aim(beat_());
}

// A tick may open a box, in whose loop the pulse has aimed anew: the earlier of the two times holds.
void Pulse::aim(Nanoseconds time) {
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(time);
    if (!timer_.isActive() || timer_.remainingTimeAsDuration() > wait)
        timer_.start(wait);
}

void Pulse::serve(Nanoseconds time) {
    QEventLoop loop;
    if (time <= Nanoseconds::zero()) {
        loop.processEvents();
        return;
    }
    QEventLoop* outer = std::exchange(serving_, &loop);
    QTimer::singleShot(std::chrono::ceil<std::chrono::milliseconds>(time), Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
    serving_ = outer;
}

} // namespace sonarelle
