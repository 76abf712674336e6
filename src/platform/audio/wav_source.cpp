#include "platform/audio/wav_source.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <optional>
#include <vector>

namespace sonarelle {

namespace {

constexpr std::size_t block_samples = 4096;

struct WavLayout {
    int rate = 0;
    std::size_t channels = 0;
    std::size_t sample_bytes = 0;
    bool is_float = false;
    std::int64_t data_at = 0;
    std::int64_t data_bytes = 0;

    [[nodiscard]] std::size_t frame_bytes() const { return channels * sample_bytes; }
};

std::uint32_t number(const std::uint8_t* bytes, std::size_t size) {
    std::uint32_t value = 0;
    for (std::size_t byte = size; byte > 0; --byte)
        value = value << 8 | bytes[byte - 1];
    return value;
}

// Formats: 1 whole numbers, 3 float, 0xFFFE the same behind a longer head.
bool read_format(const std::uint8_t* chunk, std::size_t size, WavLayout& layout) {
    constexpr std::size_t plain = 16;
    constexpr std::size_t extensible = 40;
    if (size < plain)
        return false;
    std::uint32_t format = number(chunk, 2);
    if (format == 0xFFFE && size >= extensible)
        format = number(chunk + 24, 2);
    const std::uint32_t bits = number(chunk + 14, 2);
    layout.channels = number(chunk + 2, 2);
    layout.rate = static_cast<int>(std::min<std::uint32_t>(number(chunk + 4, 4), 1'000'000));
    layout.sample_bytes = bits / 8;
    layout.is_float = format == 3;
    const bool whole = format == 1 && bits >= 8 && bits <= 32 && bits % 8 == 0;
    const bool real = format == 3 && (bits == 32 || bits == 64);
    return (whole || real) && (layout.channels == 1 || layout.channels == 2) && layout.rate >= 1000 &&
           layout.rate <= 384000 && number(chunk + 12, 2) == layout.frame_bytes();
}

std::optional<WavLayout> read_layout(RecordFile& file) {
    std::array<std::byte, 512> head_bytes{};
    const std::size_t got = file.read(0, head_bytes);
    const auto* head = reinterpret_cast<const std::uint8_t*>(head_bytes.data());
    const bool is_long = got >= 12 && std::memcmp(head, "RF64", 4) == 0;
    if (got < 12 || (!is_long && std::memcmp(head, "RIFF", 4) != 0) || std::memcmp(head + 8, "WAVE", 4) != 0)
        return std::nullopt;
    WavLayout layout;
    std::int64_t long_data_bytes = 0;
    bool has_format = false;
    std::int64_t at = 12;
    for (int chunks = 0; chunks < 1000 && at + 8 <= file.length(); ++chunks) {
        std::array<std::byte, 48> bytes{};
        const std::size_t here = file.read(at, bytes);
        if (here < 8)
            return std::nullopt;
        const auto* chunk = reinterpret_cast<const std::uint8_t*>(bytes.data());
        const std::int64_t size = number(chunk + 4, 4);
        if (std::memcmp(chunk, "fmt ", 4) == 0)
            has_format = read_format(chunk + 8, std::min(here - 8, static_cast<std::size_t>(size)), layout);
        if (is_long && std::memcmp(chunk, "ds64", 4) == 0 && here >= 24)
            long_data_bytes = std::int64_t{number(chunk + 20, 4)} << 32 | number(chunk + 16, 4);
        if (std::memcmp(chunk, "data", 4) == 0) {
            const std::int64_t held = file.length() - at - 8;
            // Writers that could not go back leave the size at nothing or at its greatest.
            const std::int64_t announced = size == UINT32_MAX ? long_data_bytes : size;
            layout.data_at = at + 8;
            layout.data_bytes = announced <= 0 ? held : std::min(announced, held);
            return has_format ? std::optional{layout} : std::nullopt;
        }
        at += 8 + size + size % 2;
    }
    return std::nullopt;
}

float sample_of(const std::uint8_t* bytes, std::size_t size, bool is_float) {
    if (is_float && size == 4) {
        float value = 0;
        std::memcpy(&value, bytes, size);
        return value;
    }
    if (is_float) {
        double value = 0;
        std::memcpy(&value, bytes, size);
        return static_cast<float>(value);
    }
    if (size == 1)
        return static_cast<float>(bytes[0] - 128) / 128.0F;
    const std::uint32_t raised = number(bytes, size) << (32 - 8 * size);
    return static_cast<float>(std::bit_cast<std::int32_t>(raised)) / 2147483648.0F;
}

class WavSource final : public SampleSource {
public:
    WavSource(std::unique_ptr<RecordFile> file, const WavLayout& layout)
        : file_{std::move(file)},
          layout_{layout},
          bytes_(block_samples * layout.frame_bytes()) {
        for (std::size_t channel = 0; channel < layout_.channels; ++channel)
            planes_[channel].resize(block_samples);
    }

    [[nodiscard]] int rate() const override { return layout_.rate; }
    [[nodiscard]] int channels() const override { return static_cast<int>(layout_.channels); }
    [[nodiscard]] int breaks() const override { return 0; }
    [[nodiscard]] std::int64_t length() override {
        return layout_.data_bytes / static_cast<std::int64_t>(layout_.frame_bytes());
    }
    void seek(std::int64_t sample) override { next_ = std::clamp<std::int64_t>(sample, 0, length()); }

    [[nodiscard]] PlanarBlock read() override {
        const auto frame_bytes = layout_.frame_bytes();
        const auto wanted = static_cast<std::size_t>(std::min<std::int64_t>(block_samples, length() - next_));
        const std::size_t got = file_->read(layout_.data_at + next_ * static_cast<std::int64_t>(frame_bytes),
                                            std::span{bytes_}.first(wanted * frame_bytes)) /
                                frame_bytes;
        next_ += static_cast<std::int64_t>(got);
        const auto* bytes = reinterpret_cast<const std::uint8_t*>(bytes_.data());
        for (std::size_t channel = 0; channel < layout_.channels; ++channel)
            convert(bytes + channel * layout_.sample_bytes, got, planes_[channel].data());
        return {.channel = {planes_[0].data(), planes_[layout_.channels - 1].data()}, .samples = got};
    }

private:
    void convert(const std::uint8_t* from, std::size_t count, float* to) const {
        const std::size_t stride = layout_.frame_bytes();
        if (layout_.sample_bytes == 2) { // nearly every file
            for (std::size_t sample = 0; sample < count; ++sample) {
                std::int16_t value = 0;
                std::memcpy(&value, from + sample * stride, sizeof value);
                to[sample] = static_cast<float>(value) / 32768.0F;
            }
            return;
        }
        for (std::size_t sample = 0; sample < count; ++sample)
            to[sample] = sample_of(from + sample * stride, layout_.sample_bytes, layout_.is_float);
    }

    std::unique_ptr<RecordFile> file_;
    WavLayout layout_;
    std::vector<std::byte> bytes_;
    std::array<std::vector<float>, 2> planes_;
    std::int64_t next_ = 0;
};

} // namespace

std::unique_ptr<SampleSource> open_wav_source(std::unique_ptr<RecordFile>& file) {
    const auto layout = read_layout(*file);
    if (!layout)
        return nullptr;
    return std::make_unique<WavSource>(std::move(file), *layout);
}

} // namespace sonarelle
