#include "platform/audio/sound_media.h"

#include <algorithm>

#include "platform/audio/sound_graph.h"

namespace sonarelle {

namespace {

constexpr Frames quiet_after_trouble = milliseconds(100);
constexpr std::size_t live_stream_frames = std::size_t{4 * frame_rate};
constexpr std::size_t inline_stream_frames = 16384; // small enough for the processor's cache
static_assert(inline_stream_frames >= SoundMedia::rendered_at_once + ramp_frames);

} // namespace

SoundMedia::SoundMedia(Clock& clock, ProgrammeBus& bus, std::shared_ptr<SoundFiles> files, Resolve resolve,
                       Decoding decoding)
    : clock_{clock},
      bus_{bus},
      resolve_{std::move(resolve)},
      decoding_{decoding},
      opener_{std::move(files), DiskPatience{decoding == Decoding::by_threads ? DiskPatience::Limit{station_patience}
                                                                              : DiskPatience::Limit{}}} {}

// A thread that hangs in a dead disk is left behind with all that it uses; the others end now.
SoundMedia::~SoundMedia() {
    const auto limit = std::chrono::steady_clock::now() + station_patience;
    for (Worker& worker : workers_) {
        worker.feeder->close(0);
        while (worker.thread.joinable() && !worker.feeder->has_ended() && std::chrono::steady_clock::now() < limit)
            std::this_thread::sleep_for(std::chrono::milliseconds{1});
        if (!worker.thread.joinable())
            continue;
        if (worker.feeder->has_ended())
            worker.thread.join();
        else
            worker.thread.detach();
    }
}

std::shared_ptr<MediaGraph> SoundMedia::create_graph() {
    return std::make_shared<SoundGraph>(*this);
}

std::unique_ptr<LengthsAhead> SoundMedia::measure_ahead() {
    return opener_.measure_ahead(resolve_);
}

void SoundMedia::housekeep() {
    bus_.housekeep();
    opener_.forget_old();
    end_workers();
    report_troubles();
}

void SoundMedia::feed() {
    for (const Worker& worker : workers_)
        while (worker.feeder->step()) {
        }
}

// Live, the callback may be in the midst of a block: the first frame that is surely still to come is one block on.
Frames SoundMedia::landing() const {
    const Frames rendered = bus_.rendered();
    return decoding_ == Decoding::by_threads ? rendered + bus_.greatest_block() : rendered;
}

std::size_t SoundMedia::stream_capacity() const {
    return decoding_ == Decoding::by_threads ? live_stream_frames : inline_stream_frames;
}

void SoundMedia::start(const std::shared_ptr<Feeder>& feeder) {
    std::thread thread;
    if (decoding_ == Decoding::by_threads)
        thread = std::thread{[feeder] { feeder->work(); }};
    workers_.push_back({feeder, std::move(thread)});
}

std::shared_ptr<SoundTroubles> SoundMedia::watch(std::string_view path) {
    auto troubles = std::make_shared<SoundTroubles>();
    watched_.push_back({std::string{path}, troubles, {}, {}, {}});
    return troubles;
}

void SoundMedia::end_workers() {
    std::erase_if(workers_, [](Worker& worker) {
        const bool ended = worker.thread.joinable() ? worker.feeder->has_ended() : worker.feeder->is_done();
        if (ended && worker.thread.joinable())
            worker.thread.join();
        return ended;
    });
}

// One report for a trouble, not one for each of its blocks: when it has been over for a while, or by a second of
// silence.
void SoundMedia::report_troubles() {
    for (Watched& watched : watched_) {
        const SoundReport counted{.path = watched.path,
                                  .starved = Frames{watched.troubles->starved_frames.load(std::memory_order_relaxed)},
                                  .breaks = watched.troubles->breaks.load(std::memory_order_relaxed)};
        const SoundReport news{.path = watched.path,
                               .starved = counted.starved - watched.told.starved,
                               .breaks = counted.breaks - watched.told.breaks};
        const bool still_grows = counted.starved != watched.seen.starved || counted.breaks != watched.seen.breaks;
        if (still_grows)
            watched.grew_at = bus_.rendered();
        watched.seen = counted;
        const bool over = bus_.rendered() - watched.grew_at >= quiet_after_trouble;
        if ((news.starved == Frames{0} && news.breaks == 0) || (!over && news.starved < seconds(1)))
            continue;
        watched.told = counted;
        if (on_trouble)
            on_trouble(news);
    }
    std::erase_if(watched_, [](const Watched& watched) {
        return watched.troubles.use_count() == 1 && watched.told.starved == watched.seen.starved &&
               watched.told.breaks == watched.seen.breaks;
    });
}

} // namespace sonarelle
