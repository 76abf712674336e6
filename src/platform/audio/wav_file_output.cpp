#include "platform/audio/wav_file_output.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "platform/audio/sample_loops.h"
#include "platform/failure.h"
#include "platform/units.h"

namespace sonarelle {

static_assert(std::endian::native == std::endian::little);

namespace {

constexpr std::uint16_t channels = 2;
constexpr std::uint16_t sample_bytes = 2;
constexpr std::size_t gathered_samples = 16384; // 32 KiB, a few whole pages: smaller and greater pieces cost more

class HeadWriter {
public:
    void word(const char* four_letters) { put(four_letters, 4); }
    template <typename Number>
    void number(Number number) {
        put(&number, sizeof number);
    }
    void skip(std::size_t bytes) { at_ += bytes; }
    [[nodiscard]] const WavHead& head() const { return head_; }

private:
    void put(const void* bytes, std::size_t count) {
        std::memcpy(&head_.at(at_), bytes, count);
        at_ += count;
    }

    WavHead head_{};
    std::size_t at_ = 0;
};

} // namespace

// The longer form has its sizes in a chunk of their own, and the greatest number where the shorter one has them.
WavHead wav_head(std::uint64_t data_bytes) {
    constexpr std::uint32_t sizes_bytes = 28;
    constexpr auto rate = static_cast<std::uint32_t>(frame_rate);
    const std::uint64_t file_bytes = WavHead{}.size() - 8 + data_bytes;
    const bool is_long = file_bytes >= UINT32_MAX;
    const auto size = [is_long](std::uint64_t bytes) {
        return is_long ? UINT32_MAX : static_cast<std::uint32_t>(bytes);
    };
    HeadWriter head;
    head.word(is_long ? "RF64" : "RIFF");
    head.number(size(file_bytes));
    head.word("WAVE");
    head.word(is_long ? "ds64" : "JUNK");
    head.number(sizes_bytes);
    if (is_long) {
        head.number(file_bytes);
        head.number(data_bytes);
        head.number(data_bytes / (channels * sample_bytes));
        head.number(std::uint32_t{0});
    } else {
        head.skip(sizes_bytes);
    }
    head.word("fmt ");
    head.number(std::uint32_t{16});
    head.number(std::uint16_t{1}); // whole numbers
    head.number(channels);
    head.number(rate);
    head.number(rate * channels * sample_bytes);
    head.number(std::uint16_t{channels * sample_bytes});
    head.number(std::uint16_t{8 * sample_bytes});
    head.word("data");
    head.number(size(data_bytes));
    return head.head();
}

WavFileOutput::WavFileOutput(const std::string& path)
    : path_{path},
      file_{path, std::ios::binary | std::ios::trunc},
      gathered_(gathered_samples) {
    if (!file_)
        throw Failure{FailureNumber::path_access, path};
    const WavHead head = wav_head(0);
    std::memcpy(gathered_.data(), head.data(), head.size());
    filled_ = head.size() / sample_bytes;
}

WavFileOutput::~WavFileOutput() {
    try {
        close();
    } catch (const Failure&) { // nobody is left to hear of it
    }
}

void WavFileOutput::write(std::span<const float> frames) {
    data_bytes_ += frames.size() * sample_bytes;
    while (!frames.empty()) {
        const std::size_t count = std::min(frames.size(), gathered_.size() - filled_);
        to_16_bits(frames.data(), count, gathered_.data() + filled_);
        frames = frames.subspan(count);
        filled_ += count;
        if (filled_ == gathered_.size())
            write_gathered();
    }
}

void WavFileOutput::close() {
    if (!file_.is_open())
        return;
    write_gathered();
    const WavHead head = wav_head(data_bytes_);
    file_.seekp(0);
    file_.write(head.data(), head.size());
    file_.close();
    check();
}

void WavFileOutput::write_gathered() {
    file_.write(reinterpret_cast<const char*>(gathered_.data()), static_cast<std::streamsize>(filled_ * sample_bytes));
    filled_ = 0;
    check();
}

void WavFileOutput::check() {
    if (!file_)
        throw Failure{FailureNumber::disk_full, path_};
}

} // namespace sonarelle
