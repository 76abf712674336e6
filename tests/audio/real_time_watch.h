#pragma once

namespace sonarelle {

/// Counts what this thread does that a callback may not: memory asked for or given back, mutexes locked.
class RealTimeWatch {
public:
    struct Seen {
        int allocations = 0;
        int locks = 0;
    };
    static void begin();
    [[nodiscard]] static Seen end();
    /// The sanitizers hold the mutexes' place themselves.
    [[nodiscard]] static bool sees_locks();
};

} // namespace sonarelle
