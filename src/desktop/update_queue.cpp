#include "desktop/update_queue.h"

#include <algorithm>

namespace sonarelle {

UpdateQueue::UpdateQueue() {
    timer_.setSingleShot(true);
    timer_.setInterval(0);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { flush(); });
}

void UpdateQueue::mark(Shown& shown) {
    if (std::ranges::find(waiting_, &shown) == waiting_.end())
        waiting_.push_back(&shown);
    if (!timer_.isActive())
        timer_.start();
}

void UpdateQueue::forget(const Shown& shown) {
    std::erase(waiting_, &shown);
}

// One by one: showing a value may make another one fall behind, or go away.
void UpdateQueue::flush() {
    while (!waiting_.empty()) {
        Shown* next = waiting_.front();
        waiting_.erase(waiting_.begin());
        next->show_value();
    }
}

} // namespace sonarelle
