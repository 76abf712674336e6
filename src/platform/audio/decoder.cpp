#include "platform/audio/decoder.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "platform/audio/ffmpeg_handles.h"
#include "platform/audio/sample_loops.h"

namespace sonarelle {

/// Brings any rate to 48 kHz. The ratio is that of two whole numbers, `up` frames out for `down` samples in, so the
/// filter's phase comes round, and a restart at a multiple of `down` continues as if there had been none.
class Decoder::Resampler {
public:
    Resampler(int rate, int channels)
        : channels_{channels} {
        const auto common = std::gcd(std::int64_t{rate}, frame_rate);
        down_ = rate / common;
        up_ = frame_rate / common;
        AVChannelLayout layout{};
        av_channel_layout_default(&layout, channels);
        SwrContext* made = nullptr;
        const int result = swr_alloc_set_opts2(&made, &layout, AV_SAMPLE_FMT_FLT, static_cast<int>(frame_rate), &layout,
                                               AV_SAMPLE_FMT_FLTP, rate, 0, nullptr);
        context_.reset(made);
        if (result < 0)
            throw std::bad_alloc{};
        restart();
    }

    void restart() {
        swr_close(context_.get());
        if (swr_init(context_.get()) < 0)
            throw std::bad_alloc{};
        begin_ = end_ = 0;
        flushed_ = false;
    }

    /// A place before `frame` to start from so that from there on the filter is full: the sample, and its frame.
    struct Start {
        std::int64_t sample;
        std::int64_t frame;
    };
    [[nodiscard]] Start start_before(std::int64_t frame) const {
        constexpr std::int64_t most_phases = 1024; // FFmpeg's limit for an exact ratio
        if (up_ > most_phases)
            return {0, 0};
        const std::int64_t filter = 64 * (1 + down_ / up_);
        const std::int64_t rounds = std::max<std::int64_t>(0, frame / up_ - (filter + down_ - 1) / down_ - 1);
        return {rounds * down_, rounds * up_};
    }

    [[nodiscard]] std::size_t ready() const { return end_ - begin_; }

    void push(const PlanarBlock& block) {
        convert(block.samples, reinterpret_cast<const std::uint8_t* const*>(block.channel.data()));
    }
    void flush() {
        if (!flushed_)
            convert(4096, nullptr);
        flushed_ = true;
    }

    std::size_t take(std::span<float> out) {
        const std::size_t count = std::min(out.size() / 2, ready());
        const float* from = frames_.data() + begin_ * static_cast<std::size_t>(channels_);
        if (channels_ == 2)
            copy_cleaned(from, 2 * count, out.data());
        else
            for (std::size_t frame = 0; frame < count; ++frame)
                out[2 * frame] = out[2 * frame + 1] = cleaned(from[frame]);
        begin_ += count;
        return count;
    }

private:
    void convert(std::size_t samples, const std::uint8_t* const* planes) {
        const auto room = static_cast<std::size_t>((static_cast<std::int64_t>(samples) + 512) * up_ / down_ + 64);
        frames_.resize(std::max(frames_.size(), room * static_cast<std::size_t>(channels_)));
        auto* out = reinterpret_cast<std::uint8_t*>(frames_.data());
        const int made =
            swr_convert(context_.get(), &out, static_cast<int>(room), const_cast<const std::uint8_t**>(planes),
                        planes == nullptr ? 0 : static_cast<int>(samples));
        begin_ = 0;
        end_ = static_cast<std::size_t>(std::max(made, 0));
    }

    FfmpegHandle<SwrContext> context_;
    int channels_;
    std::int64_t down_ = 1;
    std::int64_t up_ = 1;
    std::vector<float> frames_;
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
    bool flushed_ = false;
};

Decoder::Decoder(std::unique_ptr<SampleSource> source)
    : source_{std::move(source)} {
    if (has_sound() && source_->rate() != frame_rate)
        resampler_ = std::make_unique<Resampler>(source_->rate(), source_->channels());
}

Decoder::~Decoder() = default;

double Decoder::duration() {
    return static_cast<double>(source_->length()) / source_->rate();
}

void Decoder::seek(Frames frame) {
    if (frame == position_)
        return;
    block_ = {};
    position_ = frame;
    if (resampler_ == nullptr) {
        source_->seek(frame.count());
        return;
    }
    const auto start = resampler_->start_before(frame.count());
    source_->seek(start.sample);
    resampler_->restart();
    discard_ = static_cast<std::size_t>(frame.count() - start.frame);
}

std::size_t Decoder::read(std::span<float> out) {
    std::array<float, 2048> passed_over{};
    while (discard_ > 0) {
        const std::size_t count = read_some(std::span{passed_over}.first(2 * std::min<std::size_t>(discard_, 1024)));
        if (count == 0)
            return 0;
        discard_ -= count;
    }
    std::size_t done = 0;
    while (done < out.size() / 2) {
        const std::size_t count = read_some(out.subspan(2 * done));
        if (count == 0)
            break;
        done += count;
    }
    position_ += Frames{static_cast<std::int64_t>(done)};
    return done;
}

std::size_t Decoder::read_some(std::span<float> out) {
    if (resampler_ == nullptr) {
        if (block_.samples == 0)
            block_ = source_->read();
        const std::size_t count = std::min(out.size() / 2, block_.samples);
        interleave(out.first(2 * count));
        block_.drop(count);
        return count;
    }
    while (resampler_->ready() == 0) {
        const PlanarBlock block = source_->read();
        if (block.samples > 0) {
            resampler_->push(block);
            continue;
        }
        resampler_->flush();
        break;
    }
    return resampler_->take(out);
}

void Decoder::interleave(std::span<float> out) {
    for (std::size_t frame = 0; frame < out.size() / 2; ++frame) {
        out[2 * frame] = cleaned(block_.channel[0][frame]);
        out[2 * frame + 1] = cleaned(block_.channel[1][frame]);
    }
}

} // namespace sonarelle
