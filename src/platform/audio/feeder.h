#pragma once

#include <chrono>
#include <deque>
#include <memory>
#include <optional>
#include <vector>

#include "platform/audio/decoder.h"
#include "platform/audio/sample_stream.h"
#include "platform/thread_annotations.h"

namespace sonarelle {

/// Decodes for one graph: fills its streams, one after the other. The window thread says what is wanted; one other
/// thread (live) or the virtual loop does the work.
/// A stream that another follows is still filled as far as the bus will use it before the change.
class Feeder {
public:
    /// `opening` is what the decoder gave first, from frame 0 on: a stream that begins there sounds at once.
    Feeder(std::unique_ptr<Decoder> decoder, std::vector<float> opening, std::shared_ptr<SoundTroubles> troubles);

    // From the window thread.

    /// The stream to fill from now on. Of the one before, `needed` more frames in all are still wanted.
    void play(std::shared_ptr<SampleStream> stream, std::int64_t needed_of_last);
    /// No stream follows; of the last, `needed` frames in all are still wanted.
    void close(std::int64_t needed_of_last);

    // From the decoding side.

    /// Decodes one piece. False when there is nothing to do for now.
    bool step();
    /// Decodes, and sleeps while the rings are full, until the feeder is closed and done.
    void work();

    /// Whether it is closed and has nothing left to do. From any thread.
    [[nodiscard]] bool is_done() const;
    /// Whether `work` has come to its end. From any thread.
    [[nodiscard]] bool has_ended() const { return ended_.load(std::memory_order_acquire); }

private:
    struct Job {
        std::shared_ptr<SampleStream> stream;
        std::optional<std::int64_t> needed; ///< Frames in all; nothing: to its end.
    };

    void limit_last(std::int64_t needed) SONARELLE_REQUIRES(mutex_);
    [[nodiscard]] std::shared_ptr<SampleStream> current() SONARELLE_REQUIRES(mutex_);
    [[nodiscard]] std::chrono::milliseconds time_to_sleep() SONARELLE_REQUIRES(mutex_);
    bool fill(SampleStream& stream);
    void copy_opening(SampleStream& stream) const;
    void end(SampleStream& stream);

    // Constant after construction.
    const std::vector<float> opening_;
    const std::shared_ptr<SoundTroubles> troubles_;
    // The decoding side's own.
    const std::unique_ptr<Decoder> decoder_;
    int breaks_told_ = 0;
    std::atomic<bool> ended_{false};

    mutable Mutex mutex_;
    Condition changed_;
    std::deque<Job> jobs_ SONARELLE_GUARDED_BY(mutex_);
    bool closed_ SONARELLE_GUARDED_BY(mutex_) = false;
};

} // namespace sonarelle
