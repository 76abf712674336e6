#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace sonarelle {

/// Tells on standard error how far a long work has come, in percent, where a terminal is there to show it. Work of less
/// than a second says nothing, and the line is gone at the end.
class Progress {
public:
    Progress(std::string label, std::int64_t total);
    ~Progress() { clear(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void reach(std::int64_t done);
    /// Takes the line away, so that another can be written in its place.
    void clear();

private:
    using Clock = std::chrono::steady_clock;

    std::string label_;
    std::int64_t total_;
    bool on_terminal_;
    bool shown_ = false;
    Clock::time_point next_;
};

} // namespace sonarelle
