#pragma once

#include <array>
#include <memory>
#include <span>

#include "platform/audio/gain.h"
#include "platform/audio/retired.h"
#include "platform/audio/sample_stream.h"

namespace sonarelle {

/// A stream on its way through the bus and out again.
struct StreamTicket final : Retirable {
    explicit StreamTicket(std::shared_ptr<SampleStream> owned)
        : stream{std::move(owned)} {}
    std::shared_ptr<SampleStream> stream;
};

/// The side of a graph that the audio callback knows: all that it may touch. The window thread makes it and hands it to
/// the bus by commands; from then on only the callback uses it, until it comes back through the list of the retired.
///
/// While it sounds, the frame of the file that is heard on the bus's frame f is position + (f - since), whatever came
/// late. When it falls silent, what would have been heard next is faded out in 10 ms from a copy, so the stream is free
/// at once.
class Voice final : public Retirable {
public:
    /// Sounds from bus frame `at` on with frame `position` of the file. A ticket brings a new stream; the old one goes
    /// to `retired`.
    void play(StreamTicket* ticket, Frames at, Frames position, RetiredList& retired) noexcept;
    /// Falls silent from bus frame `at` on, without a click.
    void halt(Frames at) noexcept;
    void set_gain(float gain) noexcept;
    void drop(Frames at, RetiredList& retired) noexcept;

    /// Adds the frames of the bus from `at` on to `out` (two floats each).
    void add_to(std::span<float> out, Frames at) noexcept;

    /// Whether it was dropped and its last fade is over.
    [[nodiscard]] bool is_done() const noexcept { return dropped_ && tail_left_ == 0; }

    Voice* next = nullptr; ///< In the bus's list.
    bool listed = false;

private:
    void keep_tail(Frames position) noexcept;

    StreamTicket* ticket_ = nullptr;
    RampedGain gain_;
    Frames since_;
    Frames position_;
    bool sounds_ = false;
    bool heard_ = false; // since it began to sound
    bool dropped_ = false;
    std::array<float, 2 * ramp_frames> tail_{};
    std::size_t tail_left_ = 0; // frames
};

} // namespace sonarelle
