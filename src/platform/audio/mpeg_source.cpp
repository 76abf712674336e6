#include "platform/audio/mpeg_source.h"

#include <algorithm>
#include <optional>

#include "platform/audio/codec_session.h"
#include "platform/audio/mpeg_walk.h"

namespace sonarelle {

namespace {

// A frame of layer III may use main data of earlier frames, so far back at most; two more settle the filter bank.
constexpr std::size_t reservoir_bytes = 511;
constexpr std::size_t settling_frames = 2;
constexpr std::size_t most_frames_before = 64;

AVCodecID codec_of(int layer) {
    constexpr std::array codecs{AV_CODEC_ID_MP1, AV_CODEC_ID_MP2, AV_CODEC_ID_MP3};
    return codecs[static_cast<std::size_t>(layer - 1)];
}

class MpegSource final : public SampleSource {
public:
    MpegSource(std::unique_ptr<RecordFile> file, MpegWalk walk, std::unique_ptr<CodecSession> codec)
        : file_{std::move(file)},
          walk_{std::move(walk)},
          codec_{std::move(codec)},
          packet_{allocated(av_packet_alloc())},
          silence_(walk_.first().samples) {
        read_length_header();
        seek(0);
    }

    [[nodiscard]] int rate() const override { return walk_.first().rate; }
    [[nodiscard]] int channels() const override { return walk_.first().channels; }
    [[nodiscard]] int breaks() const override { return breaks_; }

    [[nodiscard]] std::int64_t length() override {
        if (!length_) {
            walk_.reach_end();
            length_ = length_of(walk_.known() - first_audio_);
        }
        return *length_;
    }

    void seek(std::int64_t sample) override {
        const std::size_t absolute = static_cast<std::size_t>(std::max<std::int64_t>(sample, 0)) + gaps_.start_skip;
        const std::size_t wanted = first_audio_ + absolute / frame_samples();
        next_ = walk_.reach(wanted) ? frames_back_from(wanted) : walk_.known();
        ignored_ = wanted - next_; // damage in the frames that only warm up is no news
        discard_ = absolute - (next_ - first_audio_) * frame_samples();
        left_ = length_ ? *length_ - sample : INT64_MAX;
        codec_->reset();
    }

    [[nodiscard]] PlanarBlock read() override {
        while (left_ > 0 && walk_.reach(next_)) {
            PlanarBlock block = decode(next_++);
            const std::size_t dropped = std::min(discard_, block.samples);
            discard_ -= dropped;
            block.drop(dropped);
            if (block.samples == 0)
                continue;
            block.samples = static_cast<std::size_t>(std::min<std::int64_t>(std::int64_t(block.samples), left_));
            left_ -= static_cast<std::int64_t>(block.samples);
            return block;
        }
        return {};
    }

private:
    [[nodiscard]] std::size_t frame_samples() const { return walk_.first().samples; }

    [[nodiscard]] std::int64_t length_of(std::size_t frames) const {
        const auto samples = static_cast<std::int64_t>(frames * frame_samples());
        return std::max<std::int64_t>(0, samples - static_cast<std::int64_t>(gaps_.start_skip + gaps_.end_padding));
    }

    // The header of a part (files that were put together) or of a whole that has lost its end tells no length, and what
    // it says of the end isn't true of this one.
    void read_length_header() {
        const auto bytes = walk_.bytes(0);
        const auto header = bytes.empty() ? std::nullopt : mpeg_length_header(walk_.first(), bytes.data());
        if (!header)
            return;
        first_audio_ = 1;
        gaps_ = *header;
        if (header->bytes == 0 || header->frames == 0)
            return;
        const std::int64_t held = walk_.audio_end() - walk_.offset(0);
        const bool of_a_part = held > std::int64_t{header->bytes} + header->bytes / 16 + 65536;
        const bool of_more = held < header->bytes || held < least_mpeg_bytes(mpeg_word(bytes.data()), header->frames);
        if (of_a_part || of_more)
            gaps_.end_padding = 0;
        else
            length_ = length_of(header->frames);
    }

    [[nodiscard]] std::size_t frames_back_from(std::size_t wanted) const {
        std::size_t frame = wanted;
        std::size_t main_data = 0;
        while (frame > first_audio_ && wanted - frame < most_frames_before && main_data < reservoir_bytes) {
            --frame;
            const auto size = static_cast<std::size_t>(walk_.offset(frame + 1) - walk_.offset(frame));
            const std::size_t head = 6 + walk_.first().side_info;
            main_data += size > head ? size - head : 0;
        }
        return frame - std::min(frame - first_audio_, settling_frames);
    }

    [[nodiscard]] PlanarBlock decode(std::size_t index) {
        if (walk_.broken_before(index))
            count_break();
        const auto bytes = walk_.bytes(index);
        packet_->data = const_cast<std::uint8_t*>(bytes.data());
        packet_->size = static_cast<int>(bytes.size());
        PlanarBlock block;
        if (!bytes.empty() && codec_->send(packet_.get()) && codec_->receive(block) == CodecSession::Outcome::samples &&
            block.samples == frame_samples()) {
            ignored_ -= ignored_ > 0 ? 1 : 0;
            return block;
        }
        count_break();
        ignored_ -= ignored_ > 0 ? 1 : 0;
        return {.channel = {silence_.data(), silence_.data()}, .samples = silence_.size()};
    }

    void count_break() { breaks_ += ignored_ > 0 ? 0 : 1; }

    std::unique_ptr<RecordFile> file_;
    MpegWalk walk_;
    std::unique_ptr<CodecSession> codec_;
    FfmpegHandle<AVPacket> packet_;
    std::vector<float> silence_;
    MpegLengthHeader gaps_;
    std::size_t first_audio_ = 0;
    std::optional<std::int64_t> length_;

    std::size_t next_ = 0;    // frame that is decoded next
    std::size_t ignored_ = 0; // frames that only warm the decoder up
    std::size_t discard_ = 0; // samples until the first that is wanted
    std::int64_t left_ = INT64_MAX;
    int breaks_ = 0;
};

} // namespace

std::unique_ptr<SampleSource> open_mpeg_source(std::unique_ptr<RecordFile>& file) {
    MpegWalk walk{*file};
    if (!walk.find_first())
        return nullptr;
    auto codec = CodecSession::open(codec_of(walk.first().layer));
    if (codec == nullptr)
        return nullptr;
    return std::make_unique<MpegSource>(std::move(file), std::move(walk), std::move(codec));
}

} // namespace sonarelle
