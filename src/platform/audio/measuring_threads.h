#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <thread>
#include <unordered_map>
#include <vector>

#include "platform/audio/sound_files.h"
#include "platform/disk_patience.h"
#include "platform/lengths_ahead.h"

namespace sonarelle {

/// Measures files on as many threads as the machine has processors. The threads sleep when there is nothing to measure
/// and end with their owner; one that hangs in a disk is left behind, and another takes its place. A disk that hangs is
/// asked for nothing more until it comes back, so that it costs no more threads than were under way in it.
class MeasuringThreads final : public LengthsAhead {
public:
    /// From the station's form of a path to this machine's; throws Failure when there is none. Called on the window
    /// thread.
    using Resolve = std::function<std::string(std::string_view)>;

    /// With limited patience a file that takes longer counts as one whose disk has failed.
    MeasuringThreads(std::shared_ptr<SoundFiles> files, Resolve resolve, DiskPatience patience);
    ~MeasuringThreads() override;
    MeasuringThreads(const MeasuringThreads&) = delete;
    MeasuringThreads& operator=(const MeasuringThreads&) = delete;

    void want(std::string_view path) override;
    [[nodiscard]] std::optional<MeasuredLength> take(std::string_view path,
                                                     std::chrono::milliseconds patience) override;

private:
    struct Work;

    void ask(std::string_view path, bool first);
    void add_thread();

    const std::shared_ptr<Work> work_; // shared with threads that are left behind
    const Resolve resolve_;
    DiskPatience patience_;
    std::vector<std::thread> threads_;
};

} // namespace sonarelle
