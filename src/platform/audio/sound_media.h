#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "platform/audio/feeder.h"
#include "platform/audio/file_opener.h"
#include "platform/audio/programme_bus.h"
#include "platform/clock.h"
#include "platform/media.h"

namespace sonarelle {

/// What has gone wrong with one graph's sound since the last report.
struct SoundReport {
    std::string path;
    Frames starved; ///< Silent because they came too late.
    int breaks = 0; ///< Damaged places, and an end before the announced one.
};

/// Who decodes: a thread for each running graph, while an output pulls the bus; or the loop that renders it.
enum class Decoding { by_threads, inline_with_rendering };

/// Graphs with sound, on the station's clock and one bus; all outlive it, and it outlives its graphs. Everything is
/// called from the window thread.
class SoundMedia final : public Media {
public:
    /// From the station's form of a path to this machine's; throws Failure when there is none.
    using Resolve = std::function<std::string(std::string_view)>;

    SoundMedia(Clock& clock, ProgrammeBus& bus, std::shared_ptr<SoundFiles> files, Resolve resolve, Decoding decoding);
    ~SoundMedia() override;
    SoundMedia(const SoundMedia&) = delete;
    SoundMedia& operator=(const SoundMedia&) = delete;

    [[nodiscard]] std::shared_ptr<MediaGraph> create_graph() override;
    [[nodiscard]] ProgrammeSilence silence() const override { return bus_.silence(); }
    [[nodiscard]] std::unique_ptr<LengthsAhead> measure_ahead() override;

    /// Frees what the bus has let go of, ends threads whose graphs are gone, and reports troubles. To be called now and
    /// then.
    void housekeep();
    std::function<void(const SoundReport&)> on_trouble;
    /// Called with the time that each opening of a file took.
    std::function<void(std::chrono::nanoseconds)> on_opened;

    /// Fills the streams of all graphs, for a rendering loop: enough for `rendered_at_once` more frames.
    void feed();
    static constexpr std::size_t rendered_at_once = 4096;

private:
    friend class SoundGraph;

    struct Worker {
        std::shared_ptr<Feeder> feeder;
        std::thread thread; ///< None when the rendering loop does the work.
    };
    struct Watched {
        std::string path;
        std::shared_ptr<SoundTroubles> troubles;
        SoundReport seen; ///< At the last look.
        SoundReport told; ///< With the last report.
        Frames grew_at;   ///< On the bus.
    };

    // For the graphs.
    [[nodiscard]] Frames landing() const;
    [[nodiscard]] std::size_t stream_capacity() const;
    void start(const std::shared_ptr<Feeder>& feeder);
    [[nodiscard]] std::shared_ptr<SoundTroubles> watch(std::string_view path);

    void end_workers();
    void report_troubles();

    Clock& clock_;
    ProgrammeBus& bus_;
    Resolve resolve_;
    const Decoding decoding_;
    FileOpener opener_;
    std::vector<Worker> workers_;
    std::vector<Watched> watched_;
};

} // namespace sonarelle
