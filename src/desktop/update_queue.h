#pragma once

#include <QTimer>
#include <vector>

namespace sonarelle {

/// Something on the screen that has fallen behind its value.
class Shown {
public:
    virtual ~Shown() = default;
    virtual void show_value() = 0;
};

/// Collects what has changed and shows it once, when the handler that changed it has come back: a label that is written
/// twenty times in one tick is painted once.
class UpdateQueue {
public:
    UpdateQueue();
    UpdateQueue(const UpdateQueue&) = delete;
    UpdateQueue& operator=(const UpdateQueue&) = delete;

    void mark(Shown& shown);
    /// For one that goes away.
    void forget(const Shown& shown);
    /// Shows all that waits.
    void flush();

private:
    std::vector<Shown*> waiting_;
    QTimer timer_;
};

} // namespace sonarelle
