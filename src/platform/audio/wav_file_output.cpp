#include "platform/audio/wav_file_output.h"

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

WavFileOutput::WavFileOutput(const std::string& path) : path_{path}, file_{path, std::ios::binary | std::ios::trunc} {
    if (!file_)
        throw Failure{failure_number::path_access, path};
    write_head();
}

WavFileOutput::~WavFileOutput() {
    try {
        close();
    } catch (const Failure&) { // nobody is left to hear of it
    }
}

void WavFileOutput::write(std::span<const float> frames) {
    samples_.resize(frames.size());
    to_16_bits(frames.data(), frames.size(), samples_.data());
    file_.write(reinterpret_cast<const char*>(samples_.data()),
                static_cast<std::streamsize>(samples_.size() * sample_bytes));
    data_bytes_ += samples_.size() * sample_bytes;
    check();
}

void WavFileOutput::close() {
    if (!file_.is_open())
        return;
    file_.seekp(0);
    write_head();
    file_.close();
    check();
}

void WavFileOutput::check() {
    if (!file_)
        throw Failure{failure_number::disk_full, path_};
}

void WavFileOutput::write_head() {
    const WavHead head = wav_head(data_bytes_);
    file_.write(head.data(), head.size());
}

} // namespace sonarelle
