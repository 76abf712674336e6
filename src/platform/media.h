#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/lengths_ahead.h"
#include "platform/programme_silence.h"
#include "platform/units.h"

namespace sonarelle {

enum class MediaState { stopped = 0, paused = 1, running = 2 };

/// A file opened for playing: what a deck holds while it is loaded.
/// All calls come from the window thread. Positions are seconds of the file, on the station's clock: during a tick they
/// are those of the tick's due frame, however late the call. What a call does is heard on that frame.
class MediaGraph {
public:
    virtual ~MediaGraph() = default; ///< Silences within 10 ms without a click; never blocks on the audio thread.

    /// Opens the file. Until this has succeeded the graph is empty: its duration is 0 and running it does nothing.
    /// @throws Failure 53 for a missing file, 1001 for one that can't be played, with its path as the source.
    virtual void RenderFile(std::string_view path) = 0;

    /// Starts or resumes. No effect on a running graph.
    virtual void Run() = 0;
    virtual void Pause() = 0;
    /// Halts without rewinding.
    virtual void Stop() = 0;
    [[nodiscard]] virtual MediaState GetState() const = 0;

    [[nodiscard]] virtual double get_Duration() const = 0;
    [[nodiscard]] virtual double get_CurrentPosition() const = 0;
    /// Sample-exact: what is heard is what decoding from the start has there. A position behind the end stands at it.
    virtual void put_CurrentPosition(double position) = 0;
    [[nodiscard]] virtual double get_StopTime() const = 0;

    /// Sets the attenuation, 0 (full) to -10000 (silence), in hundredths of a decibel; heard as a 10 ms ramp.
    /// @throws Failure 5 when the file has no sound.
    virtual void put_Volume(Millibel attenuation) = 0;
    [[nodiscard]] virtual Millibel get_Volume() const = 0;

    /// Whether the file has pictures, which then open a window of their own, and that window's caption.
    [[nodiscard]] virtual bool has_video() const = 0;
    virtual void put_Caption(std::string_view caption) = 0;
};

/// Where graphs come from.
class Media {
public:
    virtual ~Media() = default;

    /// An empty graph. Dropping the last reference to it stops and frees it.
    [[nodiscard]] virtual std::shared_ptr<MediaGraph> create_graph() = 0;

    /// When the graphs together were silent. Cheap; may be asked several times a second.
    [[nodiscard]] virtual ProgrammeSilence silence() const = 0;

    /// Measures many files ahead of the one who wants their lengths; must not outlive the media. At first: each by a
    /// graph, when its length is taken.
    [[nodiscard]] virtual std::unique_ptr<LengthsAhead> measure_ahead();
};

} // namespace sonarelle
