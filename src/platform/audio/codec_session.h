#pragma once

#include <vector>

#include "platform/audio/ffmpeg_handles.h"
#include "platform/audio/sample_source.h"

namespace sonarelle {

/// One codec at work: packets in, runs of float samples out. One thread, and none of the codec's own.
class CodecSession {
public:
    /// Null when FFmpeg has no such decoder or it refuses the parameters.
    [[nodiscard]] static std::unique_ptr<CodecSession> open(const AVCodecParameters& parameters);
    [[nodiscard]] static std::unique_ptr<CodecSession> open(AVCodecID codec);

    enum class Outcome { samples, hungry, damaged, ended };

    /// Takes a packet; null says that no more come. False when it is damaged.
    [[nodiscard]] bool send(const AVPacket* packet);
    /// Gives the next run, valid until the next call.
    [[nodiscard]] Outcome receive(PlanarBlock& block);

    /// As if nothing had been sent yet.
    void reset();

    /// Of the run last received; 0 before.
    [[nodiscard]] int rate() const { return frame_->sample_rate; }
    [[nodiscard]] std::int64_t timestamp() const { return frame_->best_effort_timestamp; }
    [[nodiscard]] int frame_size() const { return context_->frame_size; }

private:
    CodecSession();
    [[nodiscard]] bool start(const AVCodec* codec);
    [[nodiscard]] bool convert(PlanarBlock& block);

    FfmpegHandle<AVCodecContext> context_;
    FfmpegHandle<AVFrame> frame_;
    FfmpegHandle<SwrContext> to_float_;
    int converted_format_ = -1;
    int converted_channels_ = 0;
    int converted_rate_ = 0;
    std::array<std::vector<float>, 2> converted_;
};

} // namespace sonarelle
