#pragma once

#include <memory>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libswresample/swresample.h>
}

namespace sonarelle {

/// FFmpeg's objects, freed as it wants them freed.
struct FreeFfmpeg {
    void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
    void operator()(SwrContext* context) const { swr_free(&context); }
    void operator()(AVCodecParameters* parameters) const { avcodec_parameters_free(&parameters); }
};
template <typename Object>
using FfmpegHandle = std::unique_ptr<Object, FreeFfmpeg>;

/// Passes what it is given, or throws std::bad_alloc for nothing: what FFmpeg's allocating calls return.
template <typename Object>
Object* allocated(Object* object) {
    if (object == nullptr)
        throw std::bad_alloc{};
    return object;
}

} // namespace sonarelle
