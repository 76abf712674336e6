// The yardstick of a rehearsal that is rendered: one process that decodes files, resamples them to 48 kHz, mixes them
// with overlaps of six seconds and writes a sound file, with FFmpeg's libraries and nothing of ours.
//
//   plain_render_bench AIR.raw FILE...
#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <vector>

#include "platform/audio/ffmpeg_handles.h"

namespace {

using sonarelle::FfmpegHandle;

constexpr int rate = 48000;
constexpr std::size_t block_frames = 4096;
constexpr std::int64_t overlap = 6 * rate;

void check(bool holds, const char* what) {
    if (!holds)
        throw std::runtime_error{what};
}

class Track {
public:
    explicit Track(const char* path) {
        check(avformat_open_input(&format_, path, nullptr, nullptr) >= 0, path);
        check(avformat_find_stream_info(format_, nullptr) >= 0, path);
        const AVCodec* decoder = nullptr;
        stream_ = av_find_best_stream(format_, AVMEDIA_TYPE_AUDIO, -1, -1, &decoder, 0);
        check(stream_ >= 0, path);
        codec_.reset(avcodec_alloc_context3(decoder));
        avcodec_parameters_to_context(codec_.get(), format_->streams[stream_]->codecpar);
        codec_->thread_count = 1;
        check(avcodec_open2(codec_.get(), decoder, nullptr) >= 0, path);
        left_ = av_rescale(format_->duration, rate, AV_TIME_BASE);
        AVChannelLayout stereo{};
        av_channel_layout_default(&stereo, 2);
        SwrContext* made = nullptr;
        check(swr_alloc_set_opts2(&made, &stereo, AV_SAMPLE_FMT_FLT, rate, &codec_->ch_layout, codec_->sample_fmt,
                                  codec_->sample_rate, 0, nullptr) >= 0,
              path);
        resampler_.reset(made);
        check(swr_init(made) >= 0, path);
    }
    ~Track() { avformat_close_input(&format_); }
    Track(const Track&) = delete;
    Track& operator=(const Track&) = delete;

    [[nodiscard]] std::int64_t left() const { return left_; }
    [[nodiscard]] bool ended() const { return ended_ && next_ == ready_.size(); }

    void add_to(std::vector<float>& block) {
        for (std::size_t done = 0; done < block.size() && fill();) {
            const std::size_t count = std::min(block.size() - done, ready_.size() - next_);
            for (std::size_t sample = 0; sample < count; ++sample)
                block[done + sample] += ready_[next_ + sample];
            done += count;
            next_ += count;
        }
        left_ -= static_cast<std::int64_t>(block.size() / 2);
    }

private:
    [[nodiscard]] bool fill() {
        while (next_ == ready_.size() && !ended_) {
            if (avcodec_receive_frame(codec_.get(), frame_.get()) >= 0)
                resample(frame_->nb_samples, const_cast<const std::uint8_t**>(frame_->extended_data));
            else
                feed();
        }
        return next_ < ready_.size();
    }

    void feed() {
        int result = av_read_frame(format_, packet_.get());
        while (result >= 0 && packet_->stream_index != stream_) {
            av_packet_unref(packet_.get());
            result = av_read_frame(format_, packet_.get());
        }
        if (result >= 0) {
            avcodec_send_packet(codec_.get(), packet_.get());
            av_packet_unref(packet_.get());
            return;
        }
        ended_ = true;
        resample(0, nullptr);
    }

    void resample(int samples, const std::uint8_t** from) {
        const int room = swr_get_out_samples(resampler_.get(), samples);
        ready_.resize(2 * static_cast<std::size_t>(room));
        auto* to = reinterpret_cast<std::uint8_t*>(ready_.data());
        const int made = swr_convert(resampler_.get(), &to, room, from, samples);
        ready_.resize(2 * static_cast<std::size_t>(std::max(made, 0)));
        next_ = 0;
    }

    AVFormatContext* format_ = nullptr;
    int stream_ = -1;
    FfmpegHandle<AVCodecContext> codec_;
    FfmpegHandle<SwrContext> resampler_;
    FfmpegHandle<AVPacket> packet_{av_packet_alloc()};
    FfmpegHandle<AVFrame> frame_{av_frame_alloc()};
    std::vector<float> ready_;
    std::size_t next_ = 0;
    std::int64_t left_ = 0;
    bool ended_ = false;
};

void render(std::FILE* file, const std::vector<const char*>& paths) {
    AVChannelLayout stereo{};
    av_channel_layout_default(&stereo, 2);
    SwrContext* made = nullptr;
    swr_alloc_set_opts2(&made, &stereo, AV_SAMPLE_FMT_S16, rate, &stereo, AV_SAMPLE_FMT_FLT, rate, 0, nullptr);
    const FfmpegHandle<SwrContext> to_16_bits{made};
    check(made != nullptr && swr_init(made) >= 0, "16 bit");
    std::vector<float> block(2 * block_frames);
    std::vector<std::int16_t> samples(block.size());
    std::vector<std::unique_ptr<Track>> playing;
    std::size_t next = 0;
    while (next < paths.size() || !playing.empty()) {
        if (next < paths.size() && (playing.empty() || playing.back()->left() <= overlap))
            playing.push_back(std::make_unique<Track>(paths[next++]));
        std::ranges::fill(block, 0.0F);
        for (const auto& track : playing)
            track->add_to(block);
        std::erase_if(playing, [](const auto& track) { return track->ended(); });
        auto* to = reinterpret_cast<std::uint8_t*>(samples.data());
        const auto* from = reinterpret_cast<const std::uint8_t*>(block.data());
        swr_convert(made, &to, block_frames, &from, block_frames);
        check(std::fwrite(samples.data(), sizeof samples[0], samples.size(), file) == samples.size(), "disk");
    }
}

} // namespace

int main(int count, char** words) {
    if (count < 3)
        return 2;
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file{std::fopen(words[1], "wb"), &std::fclose};
    if (file == nullptr)
        return 1;
    std::setvbuf(file.get(), nullptr, _IONBF, 0); // each block goes to the disk in one piece
    render(file.get(), {words + 2, words + count});
    return 0;
}
