#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <span>

#include "platform/units.h"

namespace sonarelle {

/// What went wrong with a graph's sound, counted by whoever meets it and read by the window thread.
struct SoundTroubles {
    std::atomic<std::int64_t> starved_frames{0}; ///< Silent because they came too late.
    std::atomic<int> breaks{0};                  ///< Damaged places, and an end before the announced one.
};

/// The decoded sound of a file from one frame of it on: a ring of stereo frames between one producer (who decodes) and
/// one consumer (the bus). A seek makes a new stream; a stream only ever goes forward.
///
/// Invariants. Frames are counted from the stream's start: read <= write <= read + capacity. The producer alone moves
/// `write`, after the samples are in their places; the consumer alone moves `read`, after it is done with them. So what
/// lies between the two is the consumer's, the rest is the producer's, and neither waits.
/// The consumer may ask for frames that are not there yet: they count as starved, and when they come they are passed
/// over, so that sound and position stay together.
class SampleStream {
public:
    /// `end` is the frame of the file behind the last announced one.
    SampleStream(Frames start, Frames end, std::size_t capacity_frames, std::shared_ptr<SoundTroubles> troubles);

    [[nodiscard]] Frames start() const { return start_; }
    [[nodiscard]] Frames end() const { return end_; }

    // The producer's side.

    /// A place for decoded frames (two floats each), as long as possible in one piece; empty when the ring is full.
    [[nodiscard]] std::span<float> room();
    /// Hands over the first `frames` of that place.
    void written(std::size_t frames);
    /// No more will come: the file has ended, or its decoder gave up.
    void finish() { finished_.store(true, std::memory_order_release); }
    [[nodiscard]] bool finished() const { return finished_.load(std::memory_order_acquire); }
    /// Frames that lie ready. For the producer and for the consumer.
    [[nodiscard]] std::int64_t buffered() const {
        return write_.load(std::memory_order_acquire) - read_.load(std::memory_order_acquire);
    }
    [[nodiscard]] std::int64_t produced() const { return write_.load(std::memory_order_acquire); }
    [[nodiscard]] std::size_t capacity() const { return capacity_; }

    // The consumer's side: no call waits, allocates or throws.

    struct View {
        std::span<const float> first;
        std::span<const float> second; ///< The rest, where the ring begins again.
        [[nodiscard]] std::size_t frames() const { return (first.size() + second.size()) / 2; }
    };
    /// Up to `frames` frames from a frame of the file on, without taking them. Passes over what lies before.
    [[nodiscard]] View look(Frames from, std::size_t frames) noexcept;
    /// Gives back the room of everything before this frame of the file.
    void pass_over(Frames up_to) noexcept;
    void count_starved(std::int64_t frames) noexcept {
        troubles_->starved_frames.fetch_add(frames, std::memory_order_relaxed);
    }

private:
    [[nodiscard]] std::size_t place(std::int64_t frame) const { return static_cast<std::size_t>(frame) % capacity_; }

    const Frames start_;
    const Frames end_;
    const std::size_t capacity_; // in frames
    const std::unique_ptr<float[]> samples_;
    const std::shared_ptr<SoundTroubles> troubles_;
    alignas(64) std::atomic<std::int64_t> write_{0};
    alignas(64) std::atomic<std::int64_t> read_{0};
    std::atomic<bool> finished_{false};
};

} // namespace sonarelle
