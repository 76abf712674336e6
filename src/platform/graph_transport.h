#pragma once

#include <algorithm>

#include "platform/media.h"
#include "platform/units.h"

namespace sonarelle {

/// The commanded state of a graph: what its getters answer, by the station's now and the commands alone. A running
/// position goes on at the clock's pace up to the duration and stands there.
class GraphTransport {
public:
    void open(double duration) {
        duration_ = duration;
        state_ = MediaState::stopped;
        position_ = Frames{};
    }

    [[nodiscard]] MediaState state() const { return state_; }
    [[nodiscard]] double duration() const { return duration_; }
    [[nodiscard]] Frames end() const { return nearest_frame(duration_); }

    /// Frames of the file, at 48 kHz.
    [[nodiscard]] Frames frame(Frames now) const {
        const Frames reached = state_ == MediaState::running ? position_ + (now - since_) : position_;
        return reached < end() ? reached : end();
    }
    [[nodiscard]] double position(Frames now) const {
        const Frames at = frame(now);
        return at < end() ? in_seconds(at) : duration_;
    }

    /// When it has run since its last command, up to now; its end is the last frame.
    [[nodiscard]] RunningSpans::Span running_span(Frames now) const {
        const bool runs = state_ == MediaState::running && position_ < end();
        return {since_, runs ? std::min(now, since_ + (end() - position_)) : since_};
    }

    void run(Frames now) { change(MediaState::running, now); }
    void pause(Frames now) { change(MediaState::paused, now); }
    void stop(Frames now) { change(MediaState::stopped, now); }
    void put_position(double position, Frames now) {
        position_ = nearest_frame(position < 0 ? 0 : position);
        since_ = now;
    }

private:
    void change(MediaState state, Frames now) {
        position_ = frame(now);
        since_ = now;
        state_ = state;
    }

    MediaState state_ = MediaState::stopped;
    double duration_ = 0;
    Frames position_;
    Frames since_;
};

} // namespace sonarelle
