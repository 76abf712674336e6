// Opens any bytes as an audio file, measures, decodes and seeks in it.

#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

#include "platform/audio/decoder.h"
#include "platform/failure.h"

namespace sonarelle {
namespace {

constexpr std::size_t most_bytes = 64 * 1024;
constexpr int most_pieces = 40; // of 1024 frames: the work for one input stays small

class MemoryFile final : public RecordFile {
public:
    explicit MemoryFile(std::span<const std::byte> bytes)
        : bytes_{bytes} {}
    [[nodiscard]] std::int64_t length() const override { return static_cast<std::int64_t>(bytes_.size()); }
    std::size_t read(std::int64_t position, std::span<std::byte> into) override {
        if (position < 0 || position >= length())
            return 0;
        const auto rest = bytes_.subspan(static_cast<std::size_t>(position));
        const std::size_t count = std::min(rest.size(), into.size());
        std::memcpy(into.data(), rest.data(), count);
        return count;
    }

private:
    std::span<const std::byte> bytes_;
};

void check_samples(std::span<const float> samples) {
    for (const float sample : samples)
        if (!(sample >= -64.0F && sample <= 64.0F))
            __builtin_trap();
}

void play(Decoder& decoder) {
    std::vector<float> piece(2 * 1024);
    for (int count = 0; count < most_pieces; ++count) {
        const std::size_t frames = decoder.read(piece);
        check_samples(std::span{piece}.first(2 * frames));
        if (frames == 0)
            return;
    }
}

void open_measure_play_seek(std::span<const std::byte> bytes) {
    Decoder decoder{open_sample_source(std::make_unique<MemoryFile>(bytes), "fuzz")};
    const double duration = decoder.duration();
    if (!(duration >= 0))
        __builtin_trap();
    if (!decoder.has_sound())
        return;
    play(decoder);
    for (const std::int64_t frame : {5000, 100, 0}) {
        decoder.seek(Frames{frame});
        play(decoder);
    }
}

} // namespace
} // namespace sonarelle

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size > sonarelle::most_bytes)
        return 0;
    try {
        sonarelle::open_measure_play_seek(std::as_bytes(std::span{data, size}));
    } catch (const sonarelle::Failure&) { // refused: as it should
    }
    return 0;
}
