#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/audio/pull_gate.h"
#include "platform/thread_annotations.h"

namespace sonarelle {

enum class OutputState {
    opening, ///< The first try is under way; time hasn't begun.
    playing, ///< The device pulls.
    paced,   ///< There is no device that pulls: the monotonic clock does.
};

/// What the threads of a live output share, for as long as one of them lives.
struct OutputShared {
    explicit OutputShared(ProgrammeBus& bus)
        : gate{bus} {}

    /// False when it is time to stop.
    bool sleep_for(std::chrono::milliseconds time);
    /// The same, and a choice wakes it.
    bool sleep_until_choice(std::chrono::milliseconds time);
    void set_state(OutputState next);
    /// True when there were new ones.
    bool tell_gaps();

    PullGate gate;
    std::atomic<OutputState> state{OutputState::opening};
    std::atomic<int> on_air{0};           ///< Number of the device that gets the programme; 0: there is none.
    std::atomic<bool> device_open{false}; ///< It is on the air and stays until it is closed.
    std::atomic<bool> first_try_over{false};
    std::atomic<bool> keeper_ended{false};
    std::function<void(OutputState)> on_change; ///< By the pacer alone, and so are the gaps.
    std::function<void(OutputGaps)> on_gaps;
    int gaps_told = 0;

    Mutex mutex;
    Condition wake;
    bool stopping SONARELLE_GUARDED_BY(mutex) = false;
    bool choice_is_new SONARELLE_GUARDED_BY(mutex) = false;
    std::string chosen SONARELLE_GUARDED_BY(mutex);
    std::optional<std::string> playing_on SONARELLE_GUARDED_BY(mutex);
    std::vector<std::string> names SONARELLE_GUARDED_BY(mutex);
};

} // namespace sonarelle
