#pragma once

#include <memory>
#include <span>
#include <vector>

#include "platform/audio/sample_source.h"
#include "platform/units.h"

struct SwrContext;

namespace sonarelle {

/// The sound of one open file as the programme bus takes it: 48 kHz, stereo, interleaved, finite. Used by one thread at
/// a time.
/// Output frame n is the same whether it is reached by decoding from the start or by a seek.
class Decoder {
public:
    explicit Decoder(std::unique_ptr<SampleSource> source);
    ~Decoder();
    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;

    [[nodiscard]] bool has_sound() const { return source_->channels() != 0; }
    [[nodiscard]] bool has_pictures() const { return source_->has_pictures(); }
    [[nodiscard]] int breaks() const { return source_->breaks(); }

    /// In seconds. May read the whole file.
    [[nodiscard]] double duration();

    /// The frame that the next read begins with.
    [[nodiscard]] Frames position() const { return position_; }
    void seek(Frames frame);

    /// Fills as much of `out` (two floats a frame) as there is, and returns the frames; 0 at the end.
    /// @throws Failure 57 when the disk fails.
    [[nodiscard]] std::size_t read(std::span<float> out);

private:
    class Resampler;

    [[nodiscard]] std::size_t read_some(std::span<float> out);
    void interleave(std::span<float> out);

    std::unique_ptr<SampleSource> source_;
    std::unique_ptr<Resampler> resampler_; // null at 48 kHz
    PlanarBlock block_;                    // given by the source, not yet taken
    Frames position_;
    std::size_t discard_ = 0; // frames in front of the position that a seek has to pass over
};

} // namespace sonarelle
