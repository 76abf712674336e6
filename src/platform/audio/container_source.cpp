#include "platform/audio/container_source.h"

#include <algorithm>
#include <optional>

#include "platform/audio/codec_session.h"
#include "platform/audio/container_file.h"
#include "platform/audio/top_level_chunks.h"
#include "platform/failure.h"
#include "platform/units.h"

namespace sonarelle {

namespace {

constexpr int most_damaged_packets = 1000; // in a row: then the rest of the file counts as lost

// A length is looked into where the file has fewer bytes a second than this; the look begins so long before the end.
constexpr int thinnest_sound = 500;
constexpr std::int64_t looked_at_seconds = 1;
// Sound is measured by decoding so much of it, which takes some tenths of a second, and then by its time stamps.
constexpr std::int64_t decoded_seconds = 300;

bool has_film(const ContainerFile& file) {
    const AVStream* pictures = file.stream(AVMEDIA_TYPE_VIDEO);
    return pictures != nullptr && (pictures->disposition & AV_DISPOSITION_ATTACHED_PIC) == 0;
}

// Codecs whose every frame has the same number of samples and needs only its neighbours: the time stamps of their
// packets, however coarse, tell which frame it is. All others are decoded from the start.
std::optional<std::int64_t> frame_grid(const AVCodecParameters& parameters) {
    switch (parameters.codec_id) {
    case AV_CODEC_ID_MP2:
    case AV_CODEC_ID_MP3:
        return parameters.sample_rate < 32000 && parameters.codec_id == AV_CODEC_ID_MP3 ? 576 : 1152;
    case AV_CODEC_ID_AC3:
        return 1536;
    default:
        return std::nullopt;
    }
}

class ContainerSource final : public SampleSource {
public:
    ContainerSource(std::unique_ptr<RecordFile> file, const std::string& path)
        : file_{std::move(file), path},
          stream_{file_.stream(AVMEDIA_TYPE_AUDIO)},
          packet_{allocated(av_packet_alloc())},
          has_pictures_{has_film(file_)} {
        // Any bytes look like pictures to one codec or another; a film that lasts tells for how long.
        if (stream_ == nullptr && has_pictures_ && file_.format().duration > 0)
            return;
        if (stream_ == nullptr || !start() || codec_->rate() < 1000 || codec_->rate() > 1'000'000)
            throw Failure{FailureNumber::unplayable_file, path};
        grid_ = frame_grid(*stream_->codecpar);
        rate_ = codec_->rate();
        first_stamp_ = codec_->timestamp();
        is_open_ = true;
        breaks_ = 0;
    }

    [[nodiscard]] int rate() const override { return rate_; }
    [[nodiscard]] int channels() const override { return stream_ == nullptr ? 0 : ahead_is_mono_ ? 1 : 2; }
    [[nodiscard]] bool has_pictures() const override { return has_pictures_; }
    [[nodiscard]] int breaks() const override { return breaks_; }

    [[nodiscard]] std::int64_t length() override {
        if (!length_)
            length_ = held_length();
        return *length_;
    }

    void seek(std::int64_t sample) override {
        const bool near = sample >= position_ && sample - position_ < rate_ * std::int64_t{4};
        if (!near && !jump(sample) && (sample < position_ || moved_))
            rewind();
        discard_ = sample - position_;
        moved_ = false;
    }

    [[nodiscard]] PlanarBlock read() override {
        if (stream_ == nullptr)
            return {};
        for (;;) {
            PlanarBlock block = ahead_.samples > 0 ? std::exchange(ahead_, {}) : decode();
            if (block.samples == 0)
                return {};
            const auto dropped = std::min(discard_, static_cast<std::int64_t>(block.samples));
            discard_ -= dropped;
            position_ += static_cast<std::int64_t>(block.samples);
            block.drop(static_cast<std::size_t>(dropped));
            if (block.samples > 0)
                return block;
        }
    }

private:
    // False when the first packets give no sound.
    [[nodiscard]] bool start() {
        for (unsigned other = 0; other < file_.format().nb_streams; ++other)
            if (file_.format().streams[other] != stream_)
                file_.format().streams[other]->discard = AVDISCARD_ALL;
        codec_ = CodecSession::open(*stream_->codecpar);
        position_ = discard_ = 0;
        moved_ = false;
        ahead_ = codec_ == nullptr ? PlanarBlock{} : decode();
        return ahead_.samples > 0;
    }

    [[nodiscard]] PlanarBlock decode() {
        PlanarBlock block;
        for (int damaged = 0; damaged < most_damaged_packets;) {
            switch (codec_->receive(block)) {
            case CodecSession::Outcome::samples:
                if (is_open_ && codec_->rate() != rate_)
                    break; // a change of rate within a file is damage
                ahead_is_mono_ = ahead_is_mono_ && block.channel[0] == block.channel[1];
                return block;
            case CodecSession::Outcome::ended:
                return {};
            case CodecSession::Outcome::hungry:
                if (!feed()) {
                    ++breaks_;
                    ++damaged;
                }
                continue;
            case CodecSession::Outcome::damaged:
                break;
            }
            ++breaks_;
            ++damaged;
        }
        return {};
    }

    // False for a packet that the codec refuses.
    [[nodiscard]] bool feed() {
        if (!file_.read(stream_->index, *packet_))
            return codec_->send(nullptr);
        const bool taken = codec_->send(packet_.get());
        av_packet_unref(packet_.get());
        return taken;
    }

    void rewind() {
        reopen();
        if (!start())
            throw Failure{FailureNumber::device_fault};
    }

    // Before the first packet; to decode, there is `rewind`.
    void reopen() {
        file_.reopen();
        stream_ = file_.stream(AVMEDIA_TYPE_AUDIO);
        if (stream_ == nullptr)
            throw Failure{FailureNumber::device_fault};
    }

    // To a frame of the grid a little before the sample. False when the file doesn't tell where it landed.
    [[nodiscard]] bool jump(std::int64_t sample) {
        constexpr std::int64_t settling_frames = 24;
        constexpr int unreliable_frames = 3; // the first may be the rest of one, with the next one's time stamp
        if (!grid_ || first_stamp_ == AV_NOPTS_VALUE)
            return false;
        const std::int64_t from = std::max<std::int64_t>(0, sample - settling_frames * *grid_);
        const AVRational samples{1, rate_};
        const std::int64_t stamp = first_stamp_ + av_rescale_q(from, samples, stream_->time_base);
        if (from == 0 || av_seek_frame(&file_.format(), stream_->index, stamp, AVSEEK_FLAG_BACKWARD) < 0)
            return false;
        moved_ = true;
        codec_->reset();
        const int breaks = breaks_;
        for (int frame = 0; frame < unreliable_frames; ++frame)
            ahead_ = decode();
        breaks_ = breaks;
        if (ahead_.samples == 0 || codec_->timestamp() == AV_NOPTS_VALUE)
            return false;
        const std::int64_t landed = av_rescale_q(codec_->timestamp() - first_stamp_, stream_->time_base, samples);
        position_ = (landed + *grid_ / 2) / *grid_ * *grid_;
        return position_ + (settling_frames / 2) * *grid_ <= sample;
    }

    // What the file announces, where it holds that much; else what is there.
    [[nodiscard]] std::int64_t held_length() {
        const auto announced = announced_length();
        if (stream_ == nullptr)
            return announced.value_or(0);
        const Completeness chunks = completeness_of_chunks(file_.bytes());
        if (announced && is_trusted(*announced, chunks))
            return *announced;
        const std::int64_t place = position_ + discard_;
        const int breaks = breaks_;
        std::int64_t held = 0;
        if (chunks == Completeness::cut || (announced && !sounds_up_to(*announced)))
            held = decoded_length();
        else
            held = announced ? *announced : counted_length();
        rewind();
        discard_ = place;
        breaks_ = breaks;
        return held;
    }

    [[nodiscard]] std::optional<std::int64_t> announced_length() const {
        const AVFormatContext& format = file_.format();
        const bool guessed = format.duration_estimation_method == AVFMT_DURATION_FROM_BITRATE;
        if (stream_ == nullptr || (!guessed && format.duration > 0))
            return av_rescale(std::max<std::int64_t>(format.duration, 0), rate_, AV_TIME_BASE);
        if (stream_->duration > 0 && !guessed)
            return in_samples(stream_->duration);
        return std::nullopt;
    }

    // A film may be longer than its sound.
    [[nodiscard]] bool is_trusted(std::int64_t announced, Completeness chunks) const {
        const bool found_at_the_end = file_.format().duration_estimation_method == AVFMT_DURATION_FROM_PTS;
        const bool is_thin = announced / rate_ > file_.bytes().length() / thinnest_sound;
        return chunks != Completeness::cut &&
               (found_at_the_end || has_pictures_ || (chunks == Completeness::whole && !is_thin));
    }

    // Decodes the end.
    [[nodiscard]] bool sounds_up_to(std::int64_t announced) {
        const std::int64_t from = announced - looked_at_seconds * rate_;
        if (from <= 0 || first_stamp_ == AV_NOPTS_VALUE)
            return false;
        const std::int64_t stamp = first_stamp_ + av_rescale_q(from, AVRational{1, rate_}, stream_->time_base);
        if (av_seek_frame(&file_.format(), stream_->index, stamp, AVSEEK_FLAG_BACKWARD) < 0)
            return false;
        codec_->reset();
        std::int64_t end = 0;
        for (PlanarBlock block = decode(); block.samples > 0; block = decode())
            if (codec_->timestamp() != AV_NOPTS_VALUE)
                end = in_samples(codec_->timestamp() - first_stamp_) + static_cast<std::int64_t>(block.samples);
        return end + rate_ / 20 >= announced;
    }

    [[nodiscard]] std::int64_t decoded_length() {
        rewind();
        std::int64_t samples = 0;
        for (PlanarBlock block = ahead_; block.samples > 0; block = decode()) {
            samples += static_cast<std::int64_t>(block.samples);
            if (samples > decoded_seconds * rate_)
                return samples + stamped_rest();
        }
        return samples;
    }

    // From the last decoded samples to the last packet.
    [[nodiscard]] std::int64_t stamped_rest() {
        const std::int64_t from = codec_->timestamp();
        std::int64_t last = from;
        while (file_.read(stream_->index, *packet_)) {
            if (from != AV_NOPTS_VALUE && packet_->pts != AV_NOPTS_VALUE)
                last = std::max(last, packet_->pts);
            av_packet_unref(packet_.get());
        }
        return in_samples(last - from);
    }

    // The file says nothing: its packets are counted.
    [[nodiscard]] std::int64_t counted_length() {
        reopen();
        std::int64_t samples = 0;
        while (file_.read(stream_->index, *packet_)) {
            samples += in_samples(std::max<std::int64_t>(packet_->duration, 0));
            av_packet_unref(packet_.get());
        }
        return samples;
    }

    [[nodiscard]] std::int64_t in_samples(std::int64_t stamps) const {
        return av_rescale_q(stamps, stream_->time_base, AVRational{1, rate_});
    }

    ContainerFile file_;
    AVStream* stream_;
    std::unique_ptr<CodecSession> codec_;
    FfmpegHandle<AVPacket> packet_;
    bool has_pictures_;
    bool is_open_ = false; // the first packets have told the rate
    bool ahead_is_mono_ = true;
    int rate_ = static_cast<int>(frame_rate); // of the sound, once it has begun
    std::optional<std::int64_t> grid_;
    std::optional<std::int64_t> length_;
    std::int64_t first_stamp_ = AV_NOPTS_VALUE;

    PlanarBlock ahead_;         // decoded, not yet given out
    std::int64_t position_ = 0; // of the next decoded sample
    std::int64_t discard_ = 0;
    bool moved_ = false; // by a jump that went wrong: the position is unknown
    int breaks_ = 0;
};

} // namespace

std::unique_ptr<SampleSource> open_container_source(std::unique_ptr<RecordFile> file, const std::string& path) {
    return std::make_unique<ContainerSource>(std::move(file), path);
}

} // namespace sonarelle
