#include "platform/audio/feeder.h"

#include <algorithm>

#include "platform/failure.h"

namespace sonarelle {

namespace {

constexpr std::size_t piece_floats = 2 * 8192;
// An end this much before the announced one is one of rounding.
constexpr Frames tolerated_early_end = milliseconds(100);

} // namespace

Feeder::Feeder(std::unique_ptr<Decoder> decoder, std::vector<float> opening, std::shared_ptr<SoundTroubles> troubles)
    : opening_{std::move(opening)},
      troubles_{std::move(troubles)},
      decoder_{std::move(decoder)} {}

void Feeder::play(std::shared_ptr<SampleStream> stream, std::int64_t needed_of_last) {
    copy_opening(*stream);
    {
        const MutexLock lock{mutex_};
        limit_last(needed_of_last);
        jobs_.push_back({std::move(stream), std::nullopt});
    }
    changed_.notify_one();
}

void Feeder::close(std::int64_t needed_of_last) {
    {
        const MutexLock lock{mutex_};
        limit_last(needed_of_last);
        closed_ = true;
    }
    changed_.notify_one();
}

bool Feeder::is_done() const {
    const MutexLock lock{mutex_};
    return closed_ && jobs_.empty();
}

void Feeder::limit_last(std::int64_t needed) {
    if (!jobs_.empty())
        jobs_.back().needed = needed;
}

// Jobs that are done go; the last of an open feeder too, once its stream is finished.
std::shared_ptr<SampleStream> Feeder::current() {
    while (!jobs_.empty()) {
        const Job& job = jobs_.front();
        const bool enough = job.needed && job.stream->produced() >= *job.needed;
        if (!enough && !job.stream->finished())
            return job.stream;
        jobs_.pop_front();
    }
    return nullptr;
}

bool Feeder::step() {
    std::shared_ptr<SampleStream> stream;
    {
        const MutexLock lock{mutex_};
        stream = current();
    }
    return stream != nullptr && fill(*stream);
}

void Feeder::work() {
    while (!is_done()) {
        if (step())
            continue;
        const MutexLock lock{mutex_};
        if (closed_ && current() == nullptr)
            break;
        changed_.wait_for(mutex_, time_to_sleep());
    }
    ended_.store(true, std::memory_order_release);
}

// Until half of the ring has been played: few and long pieces of work.
std::chrono::milliseconds Feeder::time_to_sleep() {
    using std::chrono::milliseconds;
    const auto stream = current();
    if (stream == nullptr)
        return milliseconds{60'000};
    const auto half = static_cast<std::int64_t>(stream->capacity() / 2);
    const std::int64_t spare = (stream->buffered() - half) / frames_per_millisecond;
    return milliseconds{std::max<std::int64_t>(spare, 5)};
}

bool Feeder::fill(SampleStream& stream) {
    const auto room = stream.room();
    if (room.empty()) {
        if (stream.produced() >= (stream.end() - stream.start()).count())
            stream.finish();
        return stream.finished();
    }
    std::size_t count = 0;
    try {
        decoder_->seek(stream.start() + Frames{stream.produced()});
        count = decoder_->read(room.first(std::min(room.size(), piece_floats)));
    } catch (const std::exception&) { // the disk gave up: as if the file ended here
        count = 0;
    }
    troubles_->breaks.fetch_add(decoder_->breaks() - breaks_told_, std::memory_order_relaxed);
    breaks_told_ = decoder_->breaks();
    if (count == 0)
        end(stream);
    else
        stream.written(count);
    return true;
}

void Feeder::end(SampleStream& stream) {
    const Frames reached = stream.start() + Frames{stream.produced()};
    if (stream.end() - reached > tolerated_early_end)
        troubles_->breaks.fetch_add(1, std::memory_order_relaxed);
    stream.finish();
}

void Feeder::copy_opening(SampleStream& stream) const {
    const auto skipped = 2 * static_cast<std::size_t>(stream.start().count());
    if (skipped >= opening_.size())
        return;
    const auto room = stream.room();
    const std::size_t count = std::min(opening_.size() - skipped, room.size());
    std::copy_n(opening_.begin() + static_cast<std::ptrdiff_t>(skipped), count, room.begin());
    stream.written(count / 2);
}

} // namespace sonarelle
