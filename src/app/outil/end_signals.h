#pragma once

#include <functional>

namespace sonarelle {

/// While it lives, SIGINT, SIGTERM and SIGHUP ask the program to end instead of ending it at once, and the program ends
/// within 10 s whatever holds it up. A SIGHUP that the caller ignores (nohup) stays ignored. One at a time in a
/// process.
class EndSignals {
public:
    /// `ask` is called in a signal's handler, and may be called several times.
    explicit EndSignals(std::function<void()> ask);
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;
};

} // namespace sonarelle
