#include "platform/audio/codec_session.h"

namespace sonarelle {

namespace {

// Of layers I and II FFmpeg prefers decoders in whole numbers, whose rounding depends on what came before.
const AVCodec* decoder_of(AVCodecID id) {
    switch (id) {
    case AV_CODEC_ID_MP1:
        return avcodec_find_decoder_by_name("mp1float");
    case AV_CODEC_ID_MP2:
        return avcodec_find_decoder_by_name("mp2float");
    default:
        return avcodec_find_decoder(id);
    }
}

} // namespace

CodecSession::CodecSession()
    : frame_{allocated(av_frame_alloc())} {
    av_log_set_level(AV_LOG_QUIET); // what matters is counted
}

std::unique_ptr<CodecSession> CodecSession::open(const AVCodecParameters& parameters) {
    const AVCodec* codec = decoder_of(parameters.codec_id);
    if (codec == nullptr)
        return nullptr;
    std::unique_ptr<CodecSession> session{new CodecSession};
    session->context_.reset(allocated(avcodec_alloc_context3(codec)));
    if (avcodec_parameters_to_context(session->context_.get(), &parameters) < 0)
        return nullptr;
    return session->start(codec) ? std::move(session) : nullptr;
}

std::unique_ptr<CodecSession> CodecSession::open(AVCodecID id) {
    const AVCodec* codec = decoder_of(id);
    if (codec == nullptr)
        return nullptr;
    std::unique_ptr<CodecSession> session{new CodecSession};
    session->context_.reset(allocated(avcodec_alloc_context3(codec)));
    return session->start(codec) ? std::move(session) : nullptr;
}

bool CodecSession::start(const AVCodec* codec) {
    context_->thread_count = 1;
    context_->request_sample_fmt = AV_SAMPLE_FMT_FLTP;
    return avcodec_open2(context_.get(), codec, nullptr) >= 0;
}

bool CodecSession::send(const AVPacket* packet) {
    const int result = avcodec_send_packet(context_.get(), packet);
    return result >= 0 || result == AVERROR_EOF;
}

CodecSession::Outcome CodecSession::receive(PlanarBlock& block) {
    const int result = avcodec_receive_frame(context_.get(), frame_.get());
    if (result == AVERROR(EAGAIN))
        return Outcome::hungry;
    if (result == AVERROR_EOF)
        return Outcome::ended;
    return result >= 0 && convert(block) ? Outcome::samples : Outcome::damaged;
}

void CodecSession::reset() {
    avcodec_flush_buffers(context_.get());
}

bool CodecSession::convert(PlanarBlock& block) {
    const int channels = frame_->ch_layout.nb_channels;
    if (frame_->nb_samples <= 0 || channels <= 0)
        return false;
    block.samples = static_cast<std::size_t>(frame_->nb_samples);
    if (frame_->format == AV_SAMPLE_FMT_FLTP && channels <= 2) {
        const auto plane = [&](int channel) { return reinterpret_cast<const float*>(frame_->extended_data[channel]); };
        block.channel = {plane(0), plane(channels - 1)};
        return true;
    }
    const int wanted = channels == 1 ? 1 : 2;
    if (frame_->format != converted_format_ || channels != converted_channels_ ||
        frame_->sample_rate != converted_rate_) {
        AVChannelLayout from{};
        AVChannelLayout to{};
        if (av_channel_layout_copy(&from, &frame_->ch_layout) < 0)
            return false;
        if (from.order == AV_CHANNEL_ORDER_UNSPEC)
            av_channel_layout_default(&from, channels);
        av_channel_layout_default(&to, wanted);
        SwrContext* made = nullptr;
        const int result =
            swr_alloc_set_opts2(&made, &to, AV_SAMPLE_FMT_FLTP, frame_->sample_rate, &from,
                                static_cast<AVSampleFormat>(frame_->format), frame_->sample_rate, 0, nullptr);
        av_channel_layout_uninit(&from);
        to_float_.reset(made);
        converted_format_ = -1;
        if (result < 0 || swr_init(to_float_.get()) < 0)
            return false;
        converted_format_ = frame_->format;
        converted_channels_ = channels;
        converted_rate_ = frame_->sample_rate;
    }
    std::array<std::uint8_t*, 2> planes{};
    for (std::size_t channel = 0; channel < converted_.size(); ++channel) {
        converted_[channel].resize(block.samples);
        planes[channel] = reinterpret_cast<std::uint8_t*>(converted_[channel].data());
    }
    const int made = swr_convert(to_float_.get(), planes.data(), frame_->nb_samples,
                                 const_cast<const std::uint8_t**>(frame_->extended_data), frame_->nb_samples);
    block.channel = {converted_[0].data(), converted_[static_cast<std::size_t>(wanted - 1)].data()};
    return made == frame_->nb_samples;
}

} // namespace sonarelle
